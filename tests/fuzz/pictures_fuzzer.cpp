// Picture files of any content, as far as the rules look into them: are they whole, and how large?
#include "frame/elements.h"
#include "tests/fuzz/fuzzing.h"

constexpr const char* File = "\\DATA\\BD0001";

std::vector<std::string> Seeds()
{
    const std::string Png("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\x04\0\0\0\x03\0\x08\2\0\0\0crc."
                          "\0\0\0\3IDATabccrc.\0\0\0\0IENDcrc.",
                          60);
    const std::string Jpeg(
        "\xff\xd8\xff\xe0\0\x04zz\xff\xc0\0\x0b\x08\x03\0\x04\0\1\1\x11\0\xff\xd9", 23);
    const std::string Bmp("BM\x1e\0\0\0\0\0\0\0\x1a\0\0\0\x28\0\0\0\0\4\0\0\0\3\0\0\1\0\x18\0", 30);
    return {Png, Jpeg, Bmp, "GIF89a"};
}

void PlayRound(const std::string& Input)
{
    PutFile(File, Input);
    const std::string Any = PictureFileTrouble(File, 0, 0);
    const std::string Sized = PictureFileTrouble(File, 1024, 768);
    Require(Any.empty() || Any == Sized, "\"" + Any + "\", but \"" + Sized + "\"");
}
