// words.h: the dictionary on disk and the game that is played with it.
//
// The dictionary is one file of 128-byte blocks that is searched where it lies and never loaded:
// a header, word blocks in sorted order with front coding, and an index by sound. Any file, however
// damaged, answers "not found" at worst.
#pragma once

#include "frame/checked.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

constexpr int BlockSize = 128;

// What the dictionary's engine knows between two commands.
struct DictionaryRecord {
    I16 IsOpen;     // -1 once the open step has run, whether or not it found a file
    I16 BlockCount; // whole blocks of the file
    I32 Low, High, Middle;
    std::array<char, BlockSize> Block{}; // the block last read
    std::string Target;                  // the word asked for, in upper case
    std::string Current, Previous;       // words under examination in the block
    I16 IgnoreDigits;                    // a word with a digit passes
    std::vector<std::string> SkipList;   // words that always pass
    std::vector<std::string> Suggestions;
    std::string FileName;                                 // a path of the host
    Table<std::string, Span<0, 51>> WordList{"WordList"}; // the words of one block while adding
    I16 IsSuggesting, AllSuggestions;                     // -1 or 0
    std::uint32_t BlocksRead = 0;                         // since the program started
};

extern DictionaryRecord DictionaryState;

// The commands, in the numbers of DictionaryCommand. Any other code suggests, filtered.
constexpr std::int16_t AddInMiddle = 1, CheckWord = 2, AddAtOverflow = 4, SuggestAll = 5,
                       OpenFile = 98, CloseFileCode = 99;
constexpr std::int16_t NoDictionary = 53;

// dictionary.cpp: opening and looking up. The command stands in Code, and so does its answer:
// -1 done or good, 0 not, 53 no file to open. Opening takes the host's path as its word.
void DictionaryCommand(const std::string& Word, std::int16_t& Code);
// The same with the IgnoreDigits and SkipList that stand in the state.
void RunDictionary(const std::string& Word, std::int16_t& Code);
bool IsCommonWord(const std::string& Word); // upper case; never reads the file

// suggest.cpp: words that sound alike
std::int16_t SoundCode(const std::string& Word); // 0..6666
// Puts the words that sound like Word into Suggestions; Result is -1 for any, 0 for none.
void FindSuggestions(const std::string& Word, std::int16_t& Result, bool All);
// The word at a place, counted from 1, of a block, counted from 0; empty where none stands.
std::string WordAt(std::int32_t Block, int Ordinal);
