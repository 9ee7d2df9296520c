// dictionary-tool print FILE          prints the words, one a line
// dictionary-tool look-up FILE WORD...  asks the game's reader for each word and for its sound
// dictionary-tool check FILE          names all that is against the rules of the format; status 1
//                                     when anything is
#include "content/words/dictionary_file.h"
#include "words/words.h"

#include <cstdio>
#include <fstream>
#include <iterator>

static int Usage()
{
    std::fputs("dictionary-tool print FILE | look-up FILE WORD... | check FILE\n", stderr);
    return 2;
}

static int LookUp(const std::string& File, int Count, char** Words)
{
    std::int16_t Code = OpenFile;
    // The reader deletes a file without blocks, as the game does; a tool that looks must not.
    std::ifstream Input(File, std::ios::binary | std::ios::ate);
    if (!Input || Input.tellg() < BlockSize) {
        std::fprintf(stderr, "dictionary-tool: %s: no dictionary\n", File.c_str());
        return 1;
    }
    DictionaryCommand(File, Code);
    bool All = true;
    for (int I = 0; I < Count; ++I) {
        Code = CheckWord;
        DictionaryCommand(Words[I], Code);
        All = All && Code != 0;
        std::printf("%s: %s; sounds as %04d:", Words[I], Code != 0 ? "good" : "not found",
                    SoundCode(Words[I]));
        Code = 0; // suggestions that are near
        DictionaryCommand(Words[I], Code);
        for (const std::string& Suggestion : DictionaryState.Suggestions)
            std::printf(" %s", Suggestion.c_str());
        std::printf("\n");
    }
    return All ? 0 : 1;
}

int main(int Count, char** Arguments)
{
    if (Count < 3) return Usage();
    const std::string Command = Arguments[1], Name = Arguments[2];
    if (Command == "look-up" && Count > 3) return LookUp(Name, Count - 3, Arguments + 3);
    if ((Command != "print" && Command != "check") || Count > 3) return Usage();

    std::ifstream Input(Name, std::ios::binary);
    if (!Input) {
        std::fprintf(stderr, "dictionary-tool: %s: cannot be read\n", Name.c_str());
        return 1;
    }
    const Bytes File{std::istreambuf_iterator<char>(Input), std::istreambuf_iterator<char>()};
    const DictionaryReport Report = CheckDictionary(File);
    if (Command == "print") {
        for (const std::string& Word : Report.Words) std::printf("%s\n", Word.c_str());
        return 0;
    }
    for (const std::string& Fault : Report.Faults) std::printf("%s\n", Fault.c_str());
    std::printf("%d words, %d word blocks, %d index blocks, %zu faults\n", Report.Size.Words,
                Report.Size.WordBlocks, Report.Size.IndexBlocks, Report.Faults.size());
    return Report.Faults.empty() ? 0 : 1;
}
