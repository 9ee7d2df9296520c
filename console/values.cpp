#include "console/console.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

std::string QuotedText(std::string_view Text)
{
    std::string Result = "\"";
    // A line end inside a text would end the answer.
    for (char C : Text)
        Result += C == '"' ? "\"\"" : std::string(1, C == '\n' || C == '\r' ? ' ' : C);
    return Result + "\"";
}

std::string NumberText(double Value)
{
    char Text[400];
    const auto End = std::to_chars(Text, std::end(Text), Value + 0.0, std::chars_format::fixed).ptr;
    return {Text, End};
}

std::string LengthText(double Value)
{
    char Rounded[32];
    std::snprintf(Rounded, sizeof Rounded, "%.6g", Value);
    return NumberText(std::strtod(Rounded, nullptr));
}

template <typename Number> static std::optional<Number> ReadNumber(const std::string& Text)
{
    Number Value{};
    const char* End = Text.data() + Text.size();
    const auto [Stop, Error] = std::from_chars(Text.data(), End, Value);
    if (Text.empty() || Stop != End || Error != std::errc()) return std::nullopt;
    return Value;
}

std::optional<int> WholeNumber(const std::string& Text)
{
    return ReadNumber<int>(Text);
}
std::optional<double> RealNumber(const std::string& Text)
{
    const std::optional<double> Value = ReadNumber<double>(Text);
    // No length or place comes near; a number beyond would fit no int.
    return Value && std::abs(*Value) <= 1e9 ? Value : std::nullopt;
}

std::optional<std::vector<Argument>> SplitArguments(std::string_view Line)
{
    std::vector<Argument> Arguments;
    for (std::size_t At = 0; At < Line.size();) {
        if (Line[At] == ' ') {
            ++At;
            continue;
        }
        Argument New;
        New.Quoted = Line[At] == '"';
        if (New.Quoted) {
            for (++At;; ++At) {
                if (At >= Line.size()) return std::nullopt;
                if (Line[At] == '"' && (At + 1 >= Line.size() || Line[At + 1] != '"')) break;
                if (Line[At] == '"') ++At;
                New.Text += Line[At];
            }
            ++At;
        } else {
            while (At < Line.size() && Line[At] != ' ') New.Text += Line[At++];
        }
        Arguments.push_back(New);
    }
    return Arguments;
}

std::optional<IndexedName> ParseName(std::string_view Text)
{
    IndexedName Result;
    const std::size_t Open = Text.find('(');
    if (Open == std::string_view::npos) {
        Result.Name = Text;
        return Result;
    }
    Result.Name = Text.substr(0, Open);
    const std::size_t Close = Text.find(')', Open);
    if (Close == std::string_view::npos) return std::nullopt;
    std::string_view Inner = Text.substr(Open + 1, Close - Open - 1);
    while (true) {
        const std::size_t Comma = Inner.find(',');
        std::string Piece(Inner.substr(0, Comma));
        while (!Piece.empty() && Piece.front() == ' ') Piece.erase(0, 1);
        const std::optional<int> Index = WholeNumber(Piece);
        if (!Index) return std::nullopt;
        Result.Indexes.push_back(*Index);
        if (Comma == std::string_view::npos) break;
        Inner.remove_prefix(Comma + 1);
    }
    const std::string_view Rest = Text.substr(Close + 1);
    if (Rest.empty()) return Result;
    if (Rest[0] != '.') return std::nullopt;
    Result.Field = Rest.substr(1);
    return Result;
}
