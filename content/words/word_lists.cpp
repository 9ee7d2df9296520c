#include "content/words/dictionary_file.h"

#include <algorithm>
#include <fstream>
#include <string_view>

// Common to all English, then each spelling and its variants. Lists of other countries mix these.
constexpr const char* ListNames[] = {
    "english",   "american",  "british",           "british_z",         "variant_1",
    "variant_2", "variant_3", "british_variant_1", "british_variant_2",
};
// From the commonest words to the rare ones that players of word games know.
constexpr int ListSizes[] = {10, 20, 35, 40, 50, 55, 60, 70, 80};

// No tile shows an accent.
struct Fold {
    std::string_view Accented, Plain;
};
constexpr Fold Folds[] = {
    {"à", "a"}, {"á", "a"},  {"â", "a"},  {"ã", "a"}, {"ä", "a"}, {"å", "a"}, {"æ", "ae"},
    {"ç", "c"}, {"è", "e"},  {"é", "e"},  {"ê", "e"}, {"ë", "e"}, {"ì", "i"}, {"í", "i"},
    {"î", "i"}, {"ï", "i"},  {"ñ", "n"},  {"ò", "o"}, {"ó", "o"}, {"ô", "o"}, {"õ", "o"},
    {"ö", "o"}, {"ø", "o"},  {"ù", "u"},  {"ú", "u"}, {"û", "u"}, {"ü", "u"}, {"ý", "y"},
    {"ÿ", "y"}, {"œ", "oe"}, {"ß", "ss"},
};
// So that two words always fit a block.
constexpr std::size_t LongestWord = 60;

static std::string WithoutAccents(std::string Line)
{
    for (const auto& [Accented, Plain] : Folds)
        for (std::size_t Place; (Place = Line.find(Accented)) != Line.npos;)
            Line.replace(Place, Accented.size(), Plain);
    return Line;
}

static bool IsWord(std::string_view Text)
{
    return !Text.empty() && Text.size() <= LongestWord && Text[0] != '\'' &&
           std::all_of(Text.begin(), Text.end(),
                       [](char C) { return (C >= 'a' && C <= 'z') || C == '\''; });
}

bool ReadWordList(const std::string& File, WordLists& Lists)
{
    std::ifstream Input(File);
    if (!Input) return false;
    int Number = 0;
    for (std::string Line; std::getline(Input, Line);) {
        ++Number;
        std::string Word = WithoutAccents(Line);
        if (!IsWord(Word)) {
            Lists.LeftOut.push_back(File + ":" + std::to_string(Number) + ": \"" + Line +
                                    "\" is no word in lower case, left out");
        } else if (Word.ends_with("'s")) {
            ++Lists.Possessives;
        } else if (Word.size() == 1) {
            ++Lists.SingleLetters;
        } else {
            for (char& Letter : Word)
                if (Letter != '\'') Letter = static_cast<char>(Letter - 'a' + 'A');
            Lists.Words.push_back(Word);
        }
    }
    return Input.eof();
}

void SortWords(WordLists& Lists)
{
    std::sort(Lists.Words.begin(), Lists.Words.end());
    Lists.Words.erase(std::unique(Lists.Words.begin(), Lists.Words.end()), Lists.Words.end());
}

bool ReadWordLists(const std::string& Folder, WordLists& Lists, std::string& Why)
{
    for (const char* Name : ListNames) {
        for (const int Size : ListSizes) {
            const std::string File = Folder + "/" + Name + "-words." + std::to_string(Size);
            if (!ReadWordList(File, Lists)) {
                Why = File + ": cannot be read; Debian's package scowl brings it";
                return false;
            }
        }
    }
    SortWords(Lists);
    return true;
}
