// dictionary_files.h: dictionaries written by hand for the tests, in a folder of their own.
#pragma once

#include "words/words.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// A path in a folder that goes with the program.
inline std::string TestFile(const std::string& Name)
{
    static const struct Folder {
        std::string Path = (std::filesystem::temp_directory_path() / "dictionary-XXXXXX").string();
        Folder() { Path = mkdtemp(Path.data()); }
        ~Folder() { std::filesystem::remove_all(Path); }
    } Made;
    return Made.Path + "/" + Name;
}

inline std::string WriteFile(const std::string& Name, const std::string& Content)
{
    std::ofstream(TestFile(Name), std::ios::binary | std::ios::trunc) << Content;
    return TestFile(Name);
}

inline std::string ReadFile(const std::string& Path)
{
    std::ifstream Input(Path, std::ios::binary);
    return {std::istreambuf_iterator<char>(Input), std::istreambuf_iterator<char>()};
}

inline std::string Number(unsigned Value, int Width)
{
    std::string Text;
    for (int Byte = 0; Byte < Width; ++Byte) Text += static_cast<char>(Value >> 8 * Byte);
    return Text;
}

// Blocks of text, filled up with blanks.
inline std::string Blocks(const std::vector<std::string>& Texts)
{
    std::string All;
    for (const std::string& Text : Texts) All += Text + std::string(128 - Text.size(), ' ');
    return All;
}

struct Entry {
    int Key;
    std::vector<std::pair<unsigned, unsigned>> References; // block from 0, place from 1
};

inline std::string IndexBlock(const std::vector<Entry>& Entries)
{
    std::string Text;
    for (const auto& [Key, References] : Entries) {
        Text += Number(static_cast<unsigned>(Key), 2) +
                Number(static_cast<unsigned>(References.size()), 1);
        for (const auto& [Block, Ordinal] : References)
            Text += Number(Block, 4) + Number(Ordinal, 1);
    }
    Text.resize(128, '\0');
    return Text;
}

// A header, the word blocks and the index blocks. The letters begin where the first word of a
// block says so, or in the block before it: FirstBlock is given by letter, the rest follows.
inline std::string Headed(const std::vector<unsigned>& FirstBlocks,
                          const std::vector<std::string>& WordBlocks,
                          const std::vector<std::string>& IndexBlocks = {})
{
    std::string Text = "SMG" + std::string(17, '.');
    for (std::size_t Letter = 0; Letter < 26; ++Letter)
        Text += Number(Letter < FirstBlocks.size() ? FirstBlocks[Letter] : FirstBlocks.back(), 4);
    Text += Number(static_cast<unsigned>(WordBlocks.size()) + 2, 4) + Blocks(WordBlocks);
    for (const std::string& Block : IndexBlocks) Text += Block;
    return Text;
}

inline int Ask(const std::string& Word, std::int16_t Code)
{
    DictionaryCommand(Word, Code);
    return Code;
}

inline int Open(const std::string& Name, const std::string& Content)
{
    return Ask(WriteFile(Name, Content), OpenFile);
}
