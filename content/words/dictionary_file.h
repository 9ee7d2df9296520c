// dictionary_file.h: how the game's dictionary is made from word lists and checked.
//
// The file is a run of 128-byte blocks: a header, the words in byte order with front coding inside
// each block, and an index of the words by their sound.
#pragma once

#include "frame/files.h"

#include <string>
#include <vector>

constexpr int MostTokenCharacters = 127; // of a word block; the rest is blank
constexpr int MostBlocks = 32767;        // the game counts them in 16 bits
constexpr int FrontCode = 91;            // character of a token that shares 0 characters

// What the first 20 bytes of the header say; blanks fill them.
constexpr const char* HeaderId = "SMG";

struct WordLists {
    std::vector<std::string> Words;   // upper case, in byte order, each once
    std::vector<std::string> LeftOut; // "FILE:LINE: ..." for each line that is no word
    int Possessives = 0;              // lines left out for their "'s"
    int SingleLetters = 0;
};

// word_lists.cpp: reads the lists of the folder; Why names what is missing when it fails.
bool ReadWordLists(const std::string& Folder, WordLists& Lists, std::string& Why);
// Adds the words of one list, a word a line in UTF-8; false when the file cannot be read.
bool ReadWordList(const std::string& File, WordLists& Lists);
void SortWords(WordLists& Lists);

struct DictionarySize {
    int Words = 0, WordBlocks = 0, IndexBlocks = 0;
};

// build_dictionary.cpp: Words as SortWords leaves them, at least two of them. Why names the rule
// that the words would break; the result is then empty.
Bytes BuildDictionary(const std::vector<std::string>& Words, DictionarySize& Size,
                      std::string& Why);

// check_dictionary.cpp: the words of a file, in its order, and what is against the rules in it,
// one line each, "block N: ...". It reads the bytes by itself, not with the game's reader.
struct DictionaryReport {
    DictionarySize Size;
    std::vector<std::string> Words;
    std::vector<std::string> Faults;
};
DictionaryReport CheckDictionary(const Bytes& File);
