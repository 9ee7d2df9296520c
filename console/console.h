// console.h: the game without a display. One command a line comes in, one line of answer goes out.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A word of a command line, or a text that stood in double quotes.
struct Argument {
    std::string Text;
    bool Quoted = false;
};

// --- values.cpp: how values are written and read ---

std::string QuotedText(std::string_view Text); // a "b" -> "a ""b"""
std::string NumberText(double Value);          // plain decimal, as many digits as it takes
std::string LengthText(double Value);          // the same with at most six significant digits
std::optional<int> WholeNumber(const std::string& Text);
std::optional<double> RealNumber(const std::string& Text);
// The words of a line; nothing when a quote stays open.
std::optional<std::vector<Argument>> SplitArguments(std::string_view Line);

// "BoardMap(1,2,1)" or "ScoreTable(1,19,1).Score" taken apart.
struct IndexedName {
    std::string Name, Field;
    std::vector<int> Indexes;
};
std::optional<IndexedName> ParseName(std::string_view Text);

// --- state_names.cpp: the shared state by name ---

// The answer to "state": a value, a list, or "error: ...".
std::string StateValue(const std::string& Name);
std::string SetStateValue(const std::string& Name, const Argument& Value);

// --- operations.cpp: the operations of the rules by name ---

std::string CallOperation(const std::string& Name, const std::vector<Argument>& Arguments);

// --- properties.cpp: elements and their properties by name ---

struct Element;
const Element* ElementByName(const std::string& Text); // "imgTile(5)"; nullptr
std::string PropertyValue(const Element& E, const std::string& Property);
std::string PutProperty(const Element& E, const std::string& Property, const Argument& Value);
