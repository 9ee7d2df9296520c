#include "recipe.h"

#include <charconv>
#include <fstream>
#include <sstream>
#include <stdexcept>

static std::string Trimmed(const std::string& Text)
{
    const auto First = Text.find_first_not_of(" \t");
    if (First == std::string::npos) return "";
    return Text.substr(First, Text.find_last_not_of(" \t") - First + 1);
}

static Recipe ParseLine(const std::string& Text, int Line)
{
    Recipe R;
    R.Line = Line;
    std::istringstream Columns(Text);
    std::string NumberText, Keys;
    std::getline(Columns, NumberText, '|');
    std::getline(Columns, R.Name, '|');
    std::getline(Columns, R.Family, '|');
    std::getline(Columns, Keys);
    NumberText = Trimmed(NumberText);
    R.Name = Trimmed(R.Name);
    R.Family = Trimmed(R.Family);
    const char* End = NumberText.data() + NumberText.size();
    if (std::from_chars(NumberText.data(), End, R.Number).ptr != End || NumberText.empty())
        throw std::runtime_error("no number: " + NumberText);
    if (R.Name.empty() || R.Family.empty())
        throw std::runtime_error("a line is: number | name | family | keys");
    std::istringstream Pairs(Keys);
    for (std::string Pair; Pairs >> Pair;) {
        const auto Equals = Pair.find('=');
        if (Equals == std::string::npos) throw std::runtime_error("no key=value: " + Pair);
        if (!R.Keys.emplace(Pair.substr(0, Equals), Pair.substr(Equals + 1)).second)
            throw std::runtime_error("key given twice: " + Pair);
    }
    return R;
}

std::vector<Recipe> ReadRecipes(const std::string& Path)
{
    std::ifstream File(Path);
    if (!File) throw std::runtime_error("cannot read " + Path);
    std::vector<Recipe> Recipes;
    int Line = 0;
    for (std::string Text; std::getline(File, Text);) {
        ++Line;
        if (Trimmed(Text).empty() || Text[0] == '#') continue;
        try {
            Recipes.push_back(ParseLine(Text, Line));
            if (Recipes.back().Number != static_cast<int>(Recipes.size()) - 1)
                throw std::runtime_error("numbers must run from 0 without a gap");
        } catch (const std::exception& Error) {
            throw std::runtime_error(Path + ":" + std::to_string(Line) + ": " + Error.what());
        }
    }
    return Recipes;
}

bool Has(const Recipe& R, const std::string& Key)
{
    R.Read.insert(Key);
    return R.Keys.contains(Key);
}

std::string Word(const Recipe& R, const std::string& Key, const std::string& Otherwise)
{
    return Has(R, Key) ? R.Keys.at(Key) : Otherwise;
}

float Number(const Recipe& R, const std::string& Key, float Otherwise)
{
    if (!Has(R, Key)) return Otherwise;
    const std::string& Text = R.Keys.at(Key);
    float Value = 0;
    const char* End = Text.data() + Text.size();
    if (std::from_chars(Text.data(), End, Value).ptr != End || Text.empty())
        throw std::runtime_error(Key + " is no number: " + Text);
    return Value;
}

int Count(const Recipe& R, const std::string& Key, int Otherwise)
{
    return static_cast<int>(Number(R, Key, static_cast<float>(Otherwise)));
}

Palette Colours(const Recipe& R, const std::string& Key)
{
    if (!Has(R, Key)) throw std::runtime_error("the key " + Key + " is missing");
    Palette P;
    std::istringstream List(R.Keys.at(Key));
    for (std::string Name; std::getline(List, Name, ',');) P.push_back(ColourOf(Name));
    return P;
}

unsigned SeedOf(const Recipe& R)
{
    return static_cast<unsigned>(Count(R, "seed", R.Number)) * 7919U + 13U;
}

void CheckAllKeysRead(const Recipe& R)
{
    for (const auto& [Key, Value] : R.Keys)
        if (!R.Read.contains(Key))
            throw std::runtime_error("the family " + R.Family + " has no key " + Key);
}
