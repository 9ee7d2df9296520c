// fields.h: record files as fields at byte offsets. One walk over the fields serves reading and
// writing alike, so that the two cannot drift apart.
//
// Numbers are little-endian. Texts are single-byte (Windows-1252) and right-aligned in blanks; in
// memory they are UTF-8.
#pragma once

#include "frame/files.h"
#include "frame/game_state.h"

// A record file on its way in or out.
struct RecordFile {
    bool Writing;
    Bytes Content; // as long as the format; what a short file lacks is 0
};

// Values that a field may have beside 0, which is legal everywhere. Any other one stems from a
// damaged file and reads as 0, like a field that the file does not have: no wrong number ever gets
// into the state, where it could become an index.
struct Legal {
    int Low, High;
};
constexpr Legal AnyNumber = {-2147483647 - 1, 2147483647};
constexpr Legal Flag = {0, 1};

void FieldByte(RecordFile& File, int Offset, U8& Value);
void Field16(RecordFile& File, int Offset, I16& Value, Legal Values = AnyNumber);
void Field32(RecordFile& File, int Offset, I32& Value, Legal Values = AnyNumber);
// Writes the last characters of Text, as many as the width holds. Reads without the blanks at both
// ends; bytes that are no characters count as blanks.
void FieldText(RecordFile& File, int Offset, std::string& Text, int Width);

// The first Size bytes of a file, never more. A file that is missing or cannot be read gives zeros;
// a missing one is made, empty, if its folder stands. One whose save failed gives what it should
// hold.
RecordFile ReadRecordFile(const std::string& Path, int Size);
RecordFile NewRecordFile(int Size);
// Replaces the file by the content and by the further bytes of a longer file, which are kept only
// with KeepTail. On failure the old file stands, the player is told that What was not saved, and
// the content is kept for another try at the next save.
void SaveRecordFile(const std::string& Path, RecordFile& File, const std::string& What,
                    bool KeepTail = false);

std::string Trimmed(const std::string& Text);   // without blanks at both ends
std::string LowerCase(const std::string& Text); // all capitals that a byte can hold
