// make-words OUTDIR [LISTS]: makes OUTDIR/DATA/AS0001, the dictionary, from the word lists in the
// folder LISTS, Debian's own unless said otherwise.
#include "content/words/dictionary_file.h"
#include "words/words.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>

constexpr const char* DictionaryFile = "\\DATA\\AS0001";

[[noreturn]] static void Fail(const std::string& Why)
{
    std::cerr << "make-words: " << Why << std::endl;
    std::exit(1);
}

// The game's own reader must find every word.
static void ReadBack(const std::vector<std::string>& Words)
{
    std::int16_t Code = OpenFile;
    DictionaryCommand(HostPath(DictionaryFile), Code);
    if (Code != -1) Fail(std::string(DictionaryFile) + " does not open");
    for (const std::string& Word : Words) {
        Code = CheckWord;
        DictionaryCommand(Word, Code);
        if (Code != -1) Fail(std::string(DictionaryFile) + " does not hold " + Word);
    }
}

int main(int Count, char** Arguments)
{
    if (Count < 2 || Count > 3) Fail("call it with OUTDIR [LISTS]");
    GameDirectory = Arguments[1];
    WordLists Lists;
    DictionarySize Size;
    std::string Why;
    if (!ReadWordLists(Count > 2 ? Arguments[2] : "/usr/share/dict/scowl", Lists, Why)) Fail(Why);
    for (const std::string& Line : Lists.LeftOut) std::cerr << "make-words: " << Line << '\n';
    const Bytes File = BuildDictionary(Lists.Words, Size, Why);
    if (File.empty()) Fail(Why);
    const DictionaryReport Report = CheckDictionary(File);
    if (!Report.Faults.empty()) Fail(Report.Faults.front());
    if (Report.Words != Lists.Words) Fail("the blocks do not give the words back");
    if (!WriteWholeFile(DictionaryFile, File, Why)) Fail(HostPath(DictionaryFile) + ": " + Why);
    ReadBack(Lists.Words);

    std::printf("%d words; %d possessives and %zu lines that are no word left out\n", Size.Words,
                Lists.Possessives, Lists.LeftOut.size());
    std::printf("%d blocks of words, %d of the sound index, %zu of at most %d in all\n",
                Size.WordBlocks, Size.IndexBlocks, File.size() / BlockSize, MostBlocks);
    std::printf("%.2f bytes a word, %.2f with the sound index\n",
                static_cast<double>(Size.WordBlocks) * BlockSize / Size.Words,
                static_cast<double>(File.size()) / Size.Words);
}
