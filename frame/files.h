// files.h: all file access of the game. The one place that goes beyond the standard library, for
// the sake of durable saves.
//
// Paths are those of the game, "\DATA\LY0000", below the game directory.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

using Bytes = std::vector<std::uint8_t>;

// The directory of the program; a front end sets it before start-up. Without a trailing slash.
extern std::string GameDirectory;

std::string HostPath(std::string_view Path); // "\DATA\TS0001" -> GAMEDIR/DATA/TS0001
std::string FourDigits(int Number);          // 7 -> "0007"; the last four digits of a longer one
std::string DataFile(std::string_view Prefix, int Number); // "TS", 7 -> "\DATA\TS0007"

bool FileExists(std::string_view Path);
// The first bytes of a file, Most of them if it has so many: a file of any length must not take all
// memory. False when it is missing, a folder or not readable.
bool ReadFileStart(std::string_view Path, Bytes& Content, std::size_t Most);
constexpr std::size_t MostText = 1 << 20; // no text file of the game is longer
// Beside the old file, synced, then renamed over it: at any instant the old content or the new one
// stands on the disk. Makes the folder when it is missing, and removes what a killed save has left.
// False when it could not be done; Why then holds the system's reason.
bool WriteWholeFile(std::string_view Path, std::span<const std::uint8_t> Content, std::string& Why);

// Takes the next line off a text; both line endings are accepted. False at the end of the text.
bool TakeLine(std::string_view& Text, std::string& Line);

// A file that stays open and is read piece by piece. A handle is above 0; 0 means none.
int OpenForReading(const std::string& Path); // a path of the host, not of the game
long long FileLength(int Handle);
// Reads at the byte offset; returns how many bytes were there. Allocates nothing.
int ReadAt(int Handle, long long Offset, void* Into, int Count);
// The file's bytes without a call of the system for each read; nullptr when it cannot be mapped.
// Who reads behind the end of a file that was cut meanwhile is killed: look at FileLength before.
const char* MapFile(int Handle, long long Length);
void UnmapFile(const char* Map, long long Length);
// An existing file, to be read and changed in place.
int OpenForWriting(const std::string& Path);
bool WriteAt(int Handle, long long Offset, const void* From, int Count);
void CloseFile(int Handle);
void RemoveFile(const std::string& Path); // a path of the host
