// plan.cpp: reads plan.tsv, the plan of the paintings.
//
// Lines that begin with # are comments. Each row has eight fields separated by blanks: number,
// composition, light, season, sky, weather, motif, life. Numbers run from 1 without a gap.

#include "scene.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

constexpr const char* Skies[] = {"clear",  "cirrus", "cumulus", "stratus", "mackerel",
                                 "heaped", "storm",  "swirl",   "bars",    "aurora"};
constexpr const char* Weathers[] = {"fair",   "mist",   "rain",    "snow",    "petals",
                                    "leaves", "sparks", "rainbow", "meteors", "rays"};

static void Fail(const std::string& Path, int LineNumber, const std::string& Why)
{
    std::fprintf(stderr, "%s:%d: %s\n", Path.c_str(), LineNumber, Why.c_str());
    std::exit(1);
}

template <typename List> static bool Holds(const List& Names, const std::string& Name)
{
    return std::find(std::begin(Names), std::end(Names), Name) != std::end(Names);
}

std::vector<PlanRow> ReadPlan(const std::string& Path)
{
    std::ifstream File(Path);
    if (!File) Fail(Path, 0, "cannot be read");
    std::vector<PlanRow> Rows;
    std::string Text;
    for (int LineNumber = 1; std::getline(File, Text); ++LineNumber) {
        if (Text.empty() || Text[0] == '#') continue;
        std::istringstream Fields(Text);
        PlanRow Row;
        std::string More;
        if (!(Fields >> Row.Number >> Row.Composition >> Row.Light >> Row.Season >> Row.Sky >>
              Row.Weather >> Row.Motif >> Row.Life) ||
            Fields >> More)
            Fail(Path, LineNumber, "a row needs eight fields");
        if (Row.Number != int(Rows.size()) + 1)
            Fail(Path, LineNumber, "expected number " + std::to_string(Rows.size() + 1));
        if (!FindComposition(Row.Composition))
            Fail(Path, LineNumber, "no composition " + Row.Composition);
        if (!FindLight(Row.Light)) Fail(Path, LineNumber, "no light " + Row.Light);
        if (!FindSeason(Row.Season)) Fail(Path, LineNumber, "no season " + Row.Season);
        if (!Holds(Skies, Row.Sky)) Fail(Path, LineNumber, "no sky " + Row.Sky);
        if (!Holds(Weathers, Row.Weather)) Fail(Path, LineNumber, "no weather " + Row.Weather);
        if (!KnownMotif(Row.Motif)) Fail(Path, LineNumber, "no motif " + Row.Motif);
        if (!KnownLife(Row.Life)) Fail(Path, LineNumber, "no life " + Row.Life);
        Rows.push_back(Row);
    }
    return Rows;
}
