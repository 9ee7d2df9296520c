#include "score.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace
{

struct Reader {
    Score Result;
    Section* Current = nullptr; // the section being read
    std::string CurrentName;
    bool InForm = false;
    std::map<std::string, std::string> LineTexts; // of the current section, as written
    std::map<std::string, int> LineNumbers;
    int LineNumber = 0;
};

[[noreturn]] void Fail(const Reader& In, int LineNumber, const std::string& Rule)
{
    throw std::runtime_error(In.Result.File + ":" + std::to_string(LineNumber) + ": " + Rule);
}

std::vector<std::string> Words(const std::string& Text)
{
    std::istringstream Stream(Text);
    std::vector<std::string> Result;
    for (std::string Word; Stream >> Word;) Result.push_back(Word);
    return Result;
}

int ReadNumber(const Reader& In, int LineNumber, const std::string& Text, int Low, int High)
{
    std::size_t Used = 0;
    int Value = 0;
    try {
        Value = std::stoi(Text, &Used);
    } catch (const std::exception&) {
        Used = 0;
    }
    if (Used != Text.size() || Text.empty() || Value < Low || Value > High)
        Fail(In, LineNumber,
             "'" + Text + "' must be a number from " + std::to_string(Low) + " to " +
                 std::to_string(High));
    return Value;
}

// "3/8" in ticks
int ReadFraction(const Reader& In, int LineNumber, const std::string& Text)
{
    const auto Slash = Text.find('/');
    if (Slash == std::string::npos) Fail(In, LineNumber, "'" + Text + "' must be like 1/8");
    const int Count = ReadNumber(In, LineNumber, Text.substr(0, Slash), 1, 16);
    const int Of = ReadNumber(In, LineNumber, Text.substr(Slash + 1), 1, 32);
    return TicksPerWhole * Count / Of;
}

// The length after a tone: nothing, 3, 3/2, /2 or /. At is moved behind it.
int ReadLength(const Reader& In, int LineNumber, const std::string& Text, std::size_t& At)
{
    const auto Digits = [&] {
        int Value = 0;
        while (At < Text.size() && std::isdigit(static_cast<unsigned char>(Text[At])))
            Value = Value * 10 + (Text[At++] - '0');
        return Value;
    };
    int Count = Digits(), Of = 1;
    if (Count == 0) Count = 1;
    if (At < Text.size() && Text[At] == '/') {
        ++At;
        Of = Digits();
        if (Of == 0) Of = 2;
    }
    const int Ticks = In.Result.UnitTicks * Count;
    if (Ticks % Of != 0)
        Fail(In, LineNumber,
             "a length of " + std::to_string(Count) + "/" + std::to_string(Of) + " is too fine");
    return Ticks / Of;
}

// A letter with its signs and octave marks; -1 if there is none at At.
int ReadNoteKey(const Reader& In, int LineNumber, const std::string& Text, std::size_t& At)
{
    const std::size_t Start = At;
    int Sign = NotInScale;
    for (; At < Text.size() && std::string("^_=").find(Text[At]) != std::string::npos; ++At) {
        if (Sign == NotInScale) Sign = 0;
        Sign += Text[At] == '^' ? 1 : Text[At] == '_' ? -1 : 0;
    }
    if (At >= Text.size()) return -1;
    const char Upper = static_cast<char>(std::toupper(static_cast<unsigned char>(Text[At])));
    const auto Letter = std::string("CDEFGAB").find(Upper);
    if (Letter == std::string::npos) {
        At = Start;
        return -1;
    }
    constexpr int LetterKeys[] = {60, 62, 64, 65, 67, 69, 71};
    int Key = LetterKeys[Letter] + (Upper == Text[At] ? 0 : 12);
    ++At;
    for (; At < Text.size() && (Text[At] == '\'' || Text[At] == ','); ++At)
        Key += Text[At] == '\'' ? 12 : -12;
    if (Sign == NotInScale) Sign = In.Result.Key.Sign[Letter];
    if (Sign == NotInScale)
        Fail(In, LineNumber,
             Text.substr(Start, At - Start) + " is not in the scale " + In.Result.Key.Name +
                 "; write ^, _ or = if it is wanted");
    return Key + Sign;
}

void CheckBar(const Reader& In, int LineNumber, const std::string& Name, int Bar, int Ticks)
{
    const int Off = Ticks - Bar * In.Result.BarTicks;
    if (Off == 0) return;
    std::ostringstream Text;
    Text << "bar " << Bar << " of " << Name << " is " << std::abs(Off) / double(In.Result.UnitTicks)
         << " units too " << (Off > 0 ? "long" : "short");
    Fail(In, LineNumber, Text.str());
}

Line ReadLine(const Reader& In, int LineNumber, const std::string& Name, const std::string& Text)
{
    Line Result;
    int Now = 0, Bar = 0, TripletsLeft = 0;
    bool Tied = false, Grace = false;
    for (std::size_t At = 0; At < Text.size();) {
        const char Sign = Text[At];
        if (Sign == ' ') {
            ++At;
            continue;
        }
        if (Sign == '|') {
            const bool PhraseEnd = Text[At + 1] == '|';
            At += PhraseEnd ? 2 : 1;
            CheckBar(In, LineNumber, Name, ++Bar, Now);
            if (PhraseEnd) Result.PhraseEnds.push_back(Now);
            continue;
        }
        if (Sign == '(' && Text.substr(At, 2) == "(3") {
            TripletsLeft = 3;
            At += 2;
            continue;
        }
        if (Sign == '{' || Sign == '}') {
            Grace = Sign == '{';
            ++At;
            continue;
        }
        std::vector<int> Keys;
        if (Sign == 'z') {
            ++At;
        } else if (Sign == '[') {
            for (++At; At < Text.size() && Text[At] != ']';) {
                const int Key = ReadNoteKey(In, LineNumber, Text, At);
                if (Key < 0)
                    Fail(In, LineNumber, "no tone after [ at '" + Text.substr(At, 8) + "'");
                Keys.push_back(Key);
            }
            ++At;
        } else {
            const int Key = ReadNoteKey(In, LineNumber, Text, At);
            if (Key < 0) Fail(In, LineNumber, "no tone at '" + Text.substr(At, 8) + "'");
            Keys.push_back(Key);
        }
        if (Grace) {
            for (int Key : Keys) Result.Notes.push_back({Key, Now, In.Result.UnitTicks / 4, true});
            continue;
        }
        int Ticks = ReadLength(In, LineNumber, Text, At);
        if (TripletsLeft > 0) {
            Ticks = Ticks * 2 / 3;
            --TripletsLeft;
        }
        for (int Key : Keys) {
            bool Joined = false;
            for (auto Note = Result.Notes.rbegin(); Tied && Note != Result.Notes.rend(); ++Note)
                if (Note->Key == Key && Note->Start + Note->Ticks == Now) {
                    Note->Ticks += Ticks;
                    Joined = true;
                    break;
                }
            if (Tied && !Joined)
                Fail(In, LineNumber,
                     "bar " + std::to_string(Bar + 1) + " of " + Name +
                         ": a tie joins two tones that differ");
            if (!Joined) Result.Notes.push_back({Key, Now, Ticks});
        }
        Now += Ticks;
        Tied = At < Text.size() && Text[At] == '-';
        if (Tied) ++At;
    }
    if (Now > Bar * In.Result.BarTicks) CheckBar(In, LineNumber, Name, ++Bar, Now);
    if (Result.PhraseEnds.empty() || Result.PhraseEnds.back() != Now)
        Result.PhraseEnds.push_back(Now);
    Result.Ticks = Now;
    for (int End : Result.PhraseEnds)
        for (auto Note = Result.Notes.rbegin(); Note != Result.Notes.rend(); ++Note)
            if (Note->Start < End) {
                Note->EndsPhrase = true;
                break;
            }
    return Result;
}

std::vector<Chord> ReadChords(const Reader& In, int LineNumber, const std::string& Text)
{
    std::vector<Chord> Result;
    std::istringstream Bars(Text);
    int Start = 0;
    for (std::string BarText; std::getline(Bars, BarText, '|');) {
        const std::vector<std::string> Slots = Words(BarText);
        if (Slots.empty()) continue;
        const int Share = In.Result.BarTicks / static_cast<int>(Slots.size());
        if (Share * static_cast<int>(Slots.size()) != In.Result.BarTicks)
            Fail(In, LineNumber, "the chords of '" + BarText + "' do not share the bar evenly");
        for (const std::string& Slot : Slots) {
            if (Slot == "." || (!Result.empty() && Slot == Result.back().Name)) {
                if (Result.empty()) Fail(In, LineNumber, "no chord before .");
                Result.back().Ticks += Share;
            } else {
                Chord Next;
                if (!ReadChord(Slot, Next)) Fail(In, LineNumber, "there is no chord " + Slot);
                Next.Start = Start;
                Next.Ticks = Share;
                Result.push_back(Next);
            }
            Start += Share;
        }
    }
    return Result;
}

void ReadFigure(Reader& In, const std::string& Text)
{
    const auto Name = Words(Text).at(0);
    if (In.Result.Figures.contains(Name))
        Fail(In, In.LineNumber, "figure " + Name + " stands twice");
    Figure& Result = In.Result.Figures[Name];
    int Now = 0, Bar = 0;
    for (std::size_t At = Text.find(Name) + Name.size(); At < Text.size();) {
        const char Sign = Text[At];
        if (Sign == ' ') {
            ++At;
            continue;
        }
        if (Sign == '|') {
            ++At;
            CheckBar(In, In.LineNumber, Name, ++Bar, Now);
            continue;
        }
        std::string Voices(1, Sign);
        ++At;
        if (Sign == '[') {
            const auto Close = Text.find(']', At);
            if (Close == std::string::npos) Fail(In, In.LineNumber, "[ without ]");
            Voices = Text.substr(At, Close - At);
            At = Close + 1;
        }
        // A digit is a voice, so the length of a voice is written after a colon or as /n.
        int Ticks = In.Result.UnitTicks;
        if (At < Text.size() && Text[At] == ':')
            ++At, Ticks = ReadLength(In, In.LineNumber, Text, At);
        else if (At < Text.size() && Text[At] == '/')
            Ticks = ReadLength(In, In.LineNumber, Text, At);
        for (char Voice : Voices) {
            if (Voice == 'z') continue;
            if (std::string("bBofx123456789").find(Voice) == std::string::npos)
                Fail(In, In.LineNumber, std::string("a figure has no voice ") + Voice);
            Result.Tones.push_back({Voice, Now, Ticks});
        }
        Now += Ticks;
    }
    if (Now > Bar * In.Result.BarTicks) CheckBar(In, In.LineNumber, Name, ++Bar, Now);
    Result.Ticks = Now;
    if (Now == 0) Fail(In, In.LineNumber, "figure " + Name + " is empty");
}

const Part* FindPart(const Score& In, const std::string& Name)
{
    for (const Part& P : In.Parts)
        if (P.Name == Name) return &P;
    return nullptr;
}

void ReadPart(Reader& In, const std::vector<std::string>& Row)
{
    if (Row.size() < 3 || Row.size() % 2 == 0)
        Fail(In, In.LineNumber,
             "a part needs a name, an instrument and properties with their values");
    Part P;
    P.Name = Row[1];
    P.Plays = FindInstrument(Row[2]);
    if (P.Plays == nullptr) Fail(In, In.LineNumber, "there is no instrument " + Row[2]);
    if (FindPart(In.Result, P.Name)) Fail(In, In.LineNumber, "part " + P.Name + " stands twice");
    for (std::size_t I = 3; I + 1 < Row.size(); I += 2) {
        if (Row[I] == "pan")
            P.Pan = ReadNumber(In, In.LineNumber, Row[I + 1], -64, 63);
        else if (Row[I] == "level")
            P.Level = ReadNumber(In, In.LineNumber, Row[I + 1], -30, 12);
        else if (Row[I] == "plays")
            P.Content = Row[I + 1];
        else
            Fail(In, In.LineNumber, "a part has no property " + Row[I]);
    }
    In.Result.Parts.push_back(P);
}

void ReadMetre(Reader& In, const std::vector<std::string>& Row)
{
    Score& S = In.Result;
    S.BarTicks = ReadFraction(In, In.LineNumber, Row.at(1));
    S.Accents = {0};
    if (Row.size() > 2) {
        const int Unit = TicksPerWhole / std::stoi(Row[1].substr(Row[1].find('/') + 1));
        std::istringstream Groups(Row[2]);
        int Sum = 0;
        for (std::string Group; std::getline(Groups, Group, '+');) {
            Sum += Unit * ReadNumber(In, In.LineNumber, Group, 1, 12);
            if (Sum < S.BarTicks) S.Accents.push_back(Sum);
        }
        if (Sum != S.BarTicks) Fail(In, In.LineNumber, "the groups do not fill the metre");
    } else if (Row[1] == "4/4") {
        S.Accents.push_back(S.BarTicks / 2);
    }
}

void CloseSection(Reader& In)
{
    if (In.Current == nullptr) return;
    for (const auto& [Name, Text] : In.LineTexts) {
        const int LineNumber = In.LineNumbers[Name];
        int Ticks = 0;
        if (Name.starts_with("chords")) {
            auto& Chords = In.Current->Chords[Name] = ReadChords(In, LineNumber, Text);
            for (const Chord& C : Chords) Ticks += C.Ticks;
        } else {
            Ticks = (In.Current->Lines[Name] = ReadLine(In, LineNumber, Name, Text)).Ticks;
        }
        if (In.Current->Ticks == 0) In.Current->Ticks = Ticks;
        if (In.Current->Ticks != Ticks)
            Fail(In, LineNumber,
                 Name + " has " + std::to_string(Ticks / In.Result.BarTicks) +
                     " bars, others of section " + In.CurrentName + " have " +
                     std::to_string(In.Current->Ticks / In.Result.BarTicks));
    }
    if (!In.Current->Chords.contains("chords"))
        Fail(In, In.LineNumber, "section " + In.CurrentName + " has no chords");
    In.Current = nullptr;
    In.LineTexts.clear();
    In.LineNumbers.clear();
}

void ReadFormEntry(Reader& In, const std::vector<std::string>& Row)
{
    FormEntry Entry;
    Entry.SourceLine = In.LineNumber;
    Entry.SectionName = Row[0];
    if (!In.Result.Sections.contains(Row[0]))
        Fail(In, In.LineNumber, "there is no section " + Row[0]);
    if (!In.Result.Form.empty()) Entry.Loudness = In.Result.Form.back().Loudness;
    for (std::size_t I = 1; I < Row.size(); ++I) {
        const auto Equals = Row[I].find('=');
        const std::string Name = Row[I].substr(0, Equals);
        if (Equals == std::string::npos) {
            if (Name == "rit")
                Entry.Rit = true;
            else if (Name == "pp" || Name == "p" || Name == "mp" || Name == "mf" || Name == "f")
                Entry.Loudness = Name;
            else
                Fail(In, In.LineNumber, "the form does not know the word " + Name);
            continue;
        }
        const std::string Value = Row[I].substr(Equals + 1);
        if (Name == "up")
            Entry.Up = ReadNumber(In, In.LineNumber, Value, -12, 12);
        else if (Name == "tempo")
            Entry.TempoPercent = ReadNumber(In, In.LineNumber, Value, 50, 150);
        else if (Name == "chords") {
            Entry.Chords = Value;
            if (!In.Result.Sections[Row[0]].Chords.contains(Value))
                Fail(In, In.LineNumber, "section " + Row[0] + " has no " + Value);
        } else if (FindPart(In.Result, Name))
            Entry.Contents[Name] = Value;
        else
            Fail(In, In.LineNumber, "there is no part " + Name);
    }
    In.Result.Form.push_back(Entry);
}

void ReadRow(Reader& In, const std::string& Text)
{
    Score& S = In.Result;
    const std::vector<std::string> Row = Words(Text);
    const std::string Rest =
        Text.substr(std::min(Text.size(), Text.find(Row[0]) + Row[0].size() + 1));
    if (Row.size() < 2 && Row[0] != "form" && !In.InForm)
        Fail(In, In.LineNumber, Row[0] + " has no value");
    if (In.InForm)
        ReadFormEntry(In, Row);
    else if (Row[0] == "form")
        CloseSection(In), In.InForm = true;
    else if (Row[0] == "section") {
        CloseSection(In);
        In.CurrentName = Row[1];
        if (S.Sections.contains(Row[1]))
            Fail(In, In.LineNumber, "section " + Row[1] + " stands twice");
        In.Current = &S.Sections[Row[1]];
    } else if (In.Current && FindPart(S, Row[0]))
        In.Current->Contents[Row[0]] = Row[1];
    else if (In.Current) {
        In.LineNumbers.emplace(Row[0], In.LineNumber);
        // Each row of a line ends with a whole bar.
        const auto LastSign = Rest.find_last_not_of(' ');
        In.LineTexts[Row[0]] += Rest + (Rest[LastSign] == '|' ? " " : " | ");
    } else if (Row[0] == "title")
        S.Title = Rest.substr(Rest.find_first_not_of(' '));
    else if (Row[0] == "tempo") {
        const auto Equals = Row[1].find('=');
        if (Equals == std::string::npos) Fail(In, In.LineNumber, "the tempo must be like 1/4=72");
        S.BeatTicks = ReadFraction(In, In.LineNumber, Row[1].substr(0, Equals));
        S.BeatsPerMinute = ReadNumber(In, In.LineNumber, Row[1].substr(Equals + 1), 30, 200);
    } else if (Row[0] == "metre")
        ReadMetre(In, Row);
    else if (Row[0] == "scale") {
        if (Row.size() < 3 || !ReadScale(Row[1], Row[2], S.Key))
            Fail(In, In.LineNumber, "there is no scale " + Rest);
    } else if (Row[0] == "unit")
        S.UnitTicks = ReadFraction(In, In.LineNumber, Row[1]);
    else if (Row[0] == "swing")
        S.Swing = ReadNumber(In, In.LineNumber, Row[1], 50, 75);
    else if (Row[0] == "hall")
        S.Hall = ReadNumber(In, In.LineNumber, Row[1], 0, 100);
    else if (Row[0] == "bass") {
        S.BassLowest = ReadKey(Row[1]);
        if (S.BassLowest < 0) Fail(In, In.LineNumber, "there is no tone " + Row[1]);
    } else if (Row[0] == "voicing") {
        if (Row.size() != 4) Fail(In, In.LineNumber, "voicing needs a count and two tones");
        S.Voices = ReadNumber(In, In.LineNumber, Row[1], 1, 5);
        S.VoicesLowest = ReadKey(Row[2]);
        S.VoicesHighest = ReadKey(Row[3]);
        if (S.VoicesLowest < 0 || S.VoicesHighest < S.VoicesLowest + 7)
            Fail(In, In.LineNumber, "voicing needs two tones at least a fifth apart");
    } else if (Row[0] == "part")
        ReadPart(In, Row);
    else if (Row[0] == "figure")
        ReadFigure(In, Rest);
    else
        Fail(In, In.LineNumber, "a score has no line " + Row[0]);
}

// "melody~+12": a name and its variations
void CheckContent(const Reader& In, int LineNumber, const Section& At, const std::string& Content)
{
    if (Content == "-") return;
    const auto NameEnd = std::min(Content.size(), Content.find_first_of("+~/-"));
    const std::string Name = Content.substr(0, NameEnd);
    const bool IsLine = At.Lines.contains(Name);
    if (!In.Result.Figures.contains(Name) && !IsLine)
        Fail(In, LineNumber, "neither a figure nor a line is called " + Name);
    for (std::size_t I = NameEnd; I < Content.size();) {
        const std::size_t End = std::min(Content.size(), Content.find_first_of("+~/-", I + 1));
        const std::string Change = Content.substr(I, End - I);
        if (Change[0] == '+' || Change[0] == '-')
            ReadNumber(In, LineNumber, Change.substr(1), 1, 36);
        else if (!IsLine || (Change != "~" && Change != "/3"))
            Fail(In, LineNumber, Name + " cannot be varied by " + Change);
        I = End;
    }
}

} // namespace

Score ReadScore(const std::string& Path)
{
    Reader In;
    In.Result.File = Path;
    std::ifstream File(Path);
    if (!File) throw std::runtime_error("cannot read " + Path);
    const std::string Stem = std::filesystem::path(Path).stem().string();
    In.Result.Track = ReadNumber(In, 0, Stem.substr(0, Stem.find('-')), 1, 9999);
    for (std::string Text; std::getline(File, Text);) {
        ++In.LineNumber;
        const auto First = Text.find_first_not_of(' ');
        if (First != std::string::npos && Text[First] != '#') ReadRow(In, Text);
    }
    const Score& S = In.Result;
    if (S.Title.empty()) Fail(In, 1, "the score has no title");
    if (S.BeatsPerMinute == 0 || S.BarTicks == 0 || S.Key.Name.empty())
        Fail(In, 1, "the score needs a tempo, a metre and a scale");
    if (S.Parts.empty() || S.Parts.size() > 15) Fail(In, 1, "the score needs 1 to 15 parts");
    if (S.Form.empty()) Fail(In, In.LineNumber, "the score has no form");
    for (const FormEntry& Entry : S.Form) {
        const Section& At = S.Sections.at(Entry.SectionName);
        for (const Part& P : S.Parts) {
            std::string Content = P.Content;
            if (At.Contents.contains(P.Name)) Content = At.Contents.at(P.Name);
            if (Entry.Contents.contains(P.Name)) Content = Entry.Contents.at(P.Name);
            CheckContent(In, Entry.SourceLine, At, Content);
        }
    }
    return In.Result;
}
