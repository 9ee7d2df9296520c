// main.cpp: the console's platform - a log and a virtual clock - and its commands.
#include "console/console.h"

#include "board/board.h"
#include "frame/files.h"
#include "frame/frame.h"
#include "media/media.h"

#include <chrono>
#include <cstdio>
#include <functional>
#include <iostream>
#include <map>

using Words = std::vector<Argument>;

static std::vector<std::string> Log;
static long long VirtualMilliseconds = 0;
// The virtual clock: this moment at this time of the timers' clock.
static std::chrono::sys_seconds ClockSetTo =
    std::chrono::sys_days(std::chrono::year(2026) / 1 / 2) +
    std::chrono::seconds(3 * 3600 + 4 * 60 + 5);
static long long ClockSetAt = 0;
static bool Started = false, Ended = false, Leaving = false;

// --- the platform ---

static DateTime VirtualNow()
{
    const auto Now = ClockSetTo + std::chrono::seconds((VirtualMilliseconds - ClockSetAt) / 1000);
    const auto Day = std::chrono::floor<std::chrono::days>(Now);
    const std::chrono::year_month_day Date(Day);
    const std::chrono::hh_mm_ss Time(Now - Day);
    return {static_cast<int>(Date.year()),
            static_cast<int>(static_cast<unsigned>(Date.month())),
            static_cast<int>(static_cast<unsigned>(Date.day())),
            static_cast<int>(Time.hours().count()),
            static_cast<int>(Time.minutes().count()),
            static_cast<int>(Time.seconds().count())};
}

static void FillPlatform()
{
    Platform.PlaySoundFile = [](const std::string& File) { Log.push_back("sound " + File); };
    Platform.MusicStop = [] { Log.push_back("music stop"); };
    Platform.MusicSetFile = [](const std::string& File) { Log.push_back("music file " + File); };
    Platform.MusicPlay = [] { Log.push_back("music play"); };
    Platform.ModeSet = [](int Width, int Height) {
        Log.push_back("mode " + std::to_string(Width) + " " + std::to_string(Height));
    };
    Platform.WindowPlace = [](int Left, int Top) {
        Log.push_back("window " + std::to_string(Left) + " " + std::to_string(Top));
    };
    Platform.Minimize = [] { Log.push_back("minimize"); };
    Platform.OpenAddress = [](const std::string& Address) { Log.push_back("open " + Address); };
    Platform.Now = VirtualNow;
    Platform.Milliseconds = [] { return VirtualMilliseconds; };
    Platform.ReportFatal = [](const std::string& Text) {
        std::cout << "fatal: " << Text << std::endl;
    };
    Platform.End = [] {
        Log.push_back("end");
        Ended = true;
    };
}

// --- before the start ---

static std::string DesktopCommand(const Words& Given)
{
    if (Started) return "error: the game has been started";
    if (Given.size() != 3) return "error: desktop W H DPI";
    int Values[3];
    for (int I = 0; I < 3; ++I) {
        const std::optional<int> Number = WholeNumber(Given[I].Text);
        if (!Number || *Number < 1 || *Number > 32767)
            return "error: " + Given[I].Text + " is no size";
        Values[I] = *Number;
    }
    DesktopWidth = Values[0];
    DesktopHeight = Values[1];
    DesktopDots = Values[2];
    return "ok";
}

// A 0 of the form stands for any digit.
static bool HasForm(std::string_view Text, std::string_view Form)
{
    return std::equal(Text.begin(), Text.end(), Form.begin(), Form.end(),
                      [](char C, char F) { return F == '0' ? C >= '0' && C <= '9' : C == F; });
}

static std::string ClockCommand(const Words& Given)
{
    int Y = 0, M = 0, D = 0, H = 0, Min = 0, S = 0;
    const std::string Text = Given.size() == 2 ? Given[0].Text + " " + Given[1].Text : "";
    std::sscanf(Text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d", &Y, &M, &D, &H, &Min, &S);
    const std::chrono::year_month_day Date{std::chrono::year(Y),
                                           std::chrono::month(static_cast<unsigned>(M)),
                                           std::chrono::day(static_cast<unsigned>(D))};
    if (!HasForm(Text, "0000-00-00 00:00:00") || !Date.ok() || H > 23 || Min > 59 || S > 59)
        return "error: clock YYYY-MM-DD HH:MM:SS";
    ClockSetTo = std::chrono::sys_days(Date) + std::chrono::seconds(H * 3600 + Min * 60 + S);
    ClockSetAt = VirtualMilliseconds;
    return "ok";
}

static std::string RandomCommand(const Words& Given)
{
    std::vector<double> Values;
    for (const Argument& A : Given) {
        const std::optional<double> Value = RealNumber(A.Text);
        if (!Value || !(*Value >= 0 && *Value < 1))
            return "error: " + A.Text + " is not from 0 to below 1";
        Values.push_back(*Value);
    }
    QueueRandom(Values);
    return "ok";
}

// --- running ---

static void PassTime(long long Milliseconds)
{
    const long long End = VirtualMilliseconds + Milliseconds;
    for (const Element* Next = NextTimer(); !Ended && Next && Next->Due <= End;
         Next = NextTimer()) {
        VirtualMilliseconds = std::max(VirtualMilliseconds, Next->Due);
        TickTimer(*Next);
    }
    VirtualMilliseconds = End;
}

static std::string StartCommand(const Words&)
{
    if (Started) return "error: the game has been started";
    Started = true;
    SplashLoad();
    return "ok";
}

static std::string WaitCommand(const Words& Given)
{
    const std::optional<int> Milliseconds =
        Given.size() == 1 ? WholeNumber(Given[0].Text) : std::nullopt;
    if (!Milliseconds || *Milliseconds < 0) return "error: wait MS";
    PassTime(*Milliseconds);
    return "ok";
}

static std::string BootCommand(const Words& Given)
{
    const std::string Answer = StartCommand(Given);
    if (Answer == "ok") PassTime(6000);
    return Answer;
}

// --- input ---

// ELEMENT [BUTTON] [X Y], as the pointer's commands take it.
struct Pointing {
    const Element* Target = nullptr;
    MouseButton Button = MouseButton::Left;
    float X = 0, Y = 0; // inside the element
    std::string Trouble;
};

static std::optional<MouseButton> ButtonByName(const std::string& Name)
{
    if (Name == "left") return MouseButton::Left;
    if (Name == "right") return MouseButton::Right;
    if (Name == "middle") return MouseButton::Middle;
    return std::nullopt;
}

static Pointing ParsePointing(const Words& Given, std::size_t At, bool TakesButton)
{
    Pointing Result;
    if (Given.empty()) return {.Trouble = "error: name an element"};
    Result.Target = ElementByName(Given[0].Text);
    if (!Result.Target) return {.Trouble = "error: no element " + Given[0].Text};
    Result.X = Result.Target->Width / 2;
    Result.Y = Result.Target->Height / 2;
    if (TakesButton && At < Given.size()) {
        if (const std::optional<MouseButton> Button = ButtonByName(Given[At].Text)) {
            Result.Button = *Button;
            ++At;
        }
    }
    if (At == Given.size()) return Result;
    const std::optional<double> X = RealNumber(Given[At].Text);
    const std::optional<double> Y =
        At + 2 == Given.size() ? RealNumber(Given[At + 1].Text) : std::nullopt;
    if (!X || !Y) return {.Trouble = "error: a place is X Y"};
    Result.X = static_cast<float>(*X);
    Result.Y = static_cast<float>(*Y);
    return Result;
}

static bool IsOnMainScreen(const Element& E)
{
    const Element* Up = &E;
    while (Up->Kind != ElementKind::Screen && Up->Panel != NoElement) Up = &Elements[Up->Panel];
    return Up == &frmMain && E.Kind != ElementKind::Timer && E.Kind != ElementKind::Screen;
}

static std::string Taker(const Element* E)
{
    return QuotedText(E ? ElementText(*E) : "");
}

enum class PointerAct { Move, Down, Up, Press };

static std::string PointerCommand(const Words& Given, PointerAct Act)
{
    const Pointing Where = ParsePointing(Given, 1, Act != PointerAct::Move);
    if (!Where.Trouble.empty()) return Where.Trouble;
    if (!IsOnMainScreen(*Where.Target))
        return "error: " + Given[0].Text + " is not on the main screen";
    const Point Place = ScreenPlace(*Where.Target);
    const float X = Place.X + Where.X, Y = Place.Y + Where.Y;
    const Element* Moved = SendMouseMove(X, Y);
    if (Act == PointerAct::Move) return Taker(Moved);
    if (Act == PointerAct::Up) return Taker(SendMouseUp(Where.Button, X, Y));
    const Element* Pressed = SendMouseDown(Where.Button, X, Y);
    if (Act == PointerAct::Press && !Ended) {
        SendMouseMove(X, Y);
        SendMouseUp(Where.Button, X, Y);
    }
    return Taker(Pressed);
}

static std::string HitCommand(const Words& Given)
{
    const std::optional<double> X = Given.size() == 2 ? RealNumber(Given[0].Text) : std::nullopt;
    const std::optional<double> Y = Given.size() == 2 ? RealNumber(Given[1].Text) : std::nullopt;
    if (!X || !Y) return "error: hit X Y";
    return Taker(HitTest(static_cast<float>(*X), static_cast<float>(*Y)));
}

static std::string ClearCommand(const Words&)
{
    const Element* Box = Focused();
    if (!Box) return "error: no text box has the focus";
    SendText(*Box, "");
    return "ok";
}

// The characters of a text in UTF-8.
static std::vector<std::string> Characters(const std::string& Text)
{
    std::vector<std::string> Result;
    for (char C : Text) {
        if (Result.empty() || (C & 0xC0) != 0x80) Result.emplace_back();
        Result.back() += C;
    }
    return Result;
}

static std::string KeyDownCommand(const Words& Given)
{
    if (Given.empty()) return "error: keydown KEY [shift] [ctrl] [alt]";
    const std::string& Key = Given[0].Text;
    const bool Arrow = Key == "up" || Key == "down" || Key == "left" || Key == "right";
    if (!Arrow && Characters(Key).size() != 1) return "error: no key " + Key;
    bool Shift = false, Ctrl = false, Alt = false;
    for (std::size_t I = 1; I < Given.size(); ++I) {
        if (Given[I].Text == "shift")
            Shift = true;
        else if (Given[I].Text == "ctrl")
            Ctrl = true;
        else if (Given[I].Text == "alt")
            Alt = true;
        else
            return "error: no modifier " + Given[I].Text;
    }
    SendKeyDown(Key, Shift, Ctrl, Alt);
    return "ok";
}

static std::string TypeCommand(const std::string& Text)
{
    const Element* Box = Focused();
    if (!Box) return "error: no text box has the focus";
    for (const std::string& Character : Characters(Text)) SendCharacter(*Box, Character);
    return "ok";
}

static std::string EnterCommand(const Words&)
{
    const Element* Box = Focused();
    if (!Box) return "error: no text box has the focus";
    SendKeyPress(*Box, 13);
    return "ok";
}

static const Element* ListBoxByName(const std::string& Name)
{
    const Element* E = ElementByName(Name);
    return E && E->Kind == ElementKind::ListBox ? E : nullptr;
}

static std::string DropDownCommand(const Words& Given)
{
    const Element* Box = Given.size() == 1 ? ListBoxByName(Given[0].Text) : nullptr;
    if (!Box) return "error: no such list box";
    SendDropDown(*Box);
    return "ok";
}

static std::string ChooseCommand(const std::string& Line)
{
    const std::string Rest = Line.substr(std::min(Line.find_first_not_of(' '), Line.size()));
    const std::size_t Blank = Rest.find(' ');
    const Element* Box = ListBoxByName(Rest.substr(0, Blank));
    if (!Box) return "error: no such list box";
    const std::string Item = Blank == std::string::npos ? "" : Rest.substr(Blank + 1);
    if (std::find(Box->Items.begin(), Box->Items.end(), Item) == Box->Items.end())
        return "error: " + ElementText(*Box) + " has no item " + Item;
    SendChoice(*Box, Item);
    return "ok";
}

static std::string EventCommand(const Words& Given)
{
    if (Given.size() < 2) return "error: event ELEMENT EVENT [BUTTON] [X Y]";
    const Pointing Where = ParsePointing(Given, 2, true);
    if (!Where.Trouble.empty()) return Where.Trouble;
    const Element& E = *Where.Target;
    const int X = static_cast<int>(Where.X), Y = static_cast<int>(Where.Y);
    const std::string& Event = Given[1].Text;
    if (Event == "MouseMove")
        DeliverMouseMove(E, X, Y);
    else if (Event == "MouseDown")
        DeliverMouseDown(E, Where.Button, X, Y);
    else if (Event == "MouseUp")
        DeliverMouseUp(E, Where.Button, X, Y);
    else if (Event == "Click") {
        if (E.Does.Click) E.Does.Click(E.Index);
    } else
        return "error: no event " + Event;
    return "ok";
}

static std::string PlayerStateCommand(const Words& Given)
{
    const std::optional<int> State = Given.size() == 1 ? WholeNumber(Given[0].Text) : std::nullopt;
    if (!State) return "error: player-state N";
    ActiveMP31_StateChange(*State);
    return "ok";
}

// --- looking ---

static std::string GetCommand(const Words& Given)
{
    if (Given.size() != 2) return "error: get ELEMENT PROPERTY";
    const Element* E = ElementByName(Given[0].Text);
    return E ? PropertyValue(*E, Given[1].Text) : "error: no element " + Given[0].Text;
}

static std::string FrontCommand(const Words& Given)
{
    const Element* A = Given.size() == 2 ? ElementByName(Given[0].Text) : nullptr;
    const Element* B = Given.size() == 2 ? ElementByName(Given[1].Text) : nullptr;
    if (!A || !B) return "error: front A B";
    return StandsBefore(*A, *B) ? "1" : "0";
}

static std::string StateCommand(const Words& Given)
{
    return Given.size() == 1 ? StateValue(Given[0].Text) : "error: state NAME";
}

static std::string SetCommand(const Words& Given)
{
    return Given.size() == 2 ? SetStateValue(Given[0].Text, Given[1]) : "error: set NAME VALUE";
}

static std::string PutCommand(const Words& Given)
{
    if (Given.size() != 3) return "error: put ELEMENT PROPERTY VALUE";
    const Element* E = ElementByName(Given[0].Text);
    return E ? PutProperty(*E, Given[1].Text, Given[2]) : "error: no element " + Given[0].Text;
}

static std::string SetTagCommand(const Words& Given)
{
    if (Given.size() != 2 || !Given[1].Quoted) return "error: settag ELEMENT \"TEXT\"";
    const Element* E = ElementByName(Given[0].Text);
    if (!E) return "error: no element " + Given[0].Text;
    SetTag(*E, Given[1].Text);
    return "ok";
}

static std::string CallCommand(const Words& Given)
{
    if (Given.empty()) return "error: call NAME ARGUMENT ...";
    return CallOperation(Given[0].Text, Words(Given.begin() + 1, Given.end()));
}

static std::string LogCommand(const Words&)
{
    std::string Text;
    for (const std::string& Entry : Log) Text += (Text.empty() ? "" : " ") + QuotedText(Entry);
    Log.clear();
    return Text;
}

// --- the commands ---

struct CommandRow {
    const char* Name;
    std::string (*Run)(const Words& Given);
    bool Looks = false; // still answers after the end of the program
    bool Alone = false; // takes no argument
};
static const CommandRow Commands[] = {
    {"desktop", DesktopCommand},
    {"clock", ClockCommand},
    {"random", RandomCommand},
    {"start", StartCommand, false, true},
    {"wait", WaitCommand},
    {"boot", BootCommand, false, true},
    {"move", [](const Words& G) { return PointerCommand(G, PointerAct::Move); }},
    {"down", [](const Words& G) { return PointerCommand(G, PointerAct::Down); }},
    {"up", [](const Words& G) { return PointerCommand(G, PointerAct::Up); }},
    {"press", [](const Words& G) { return PointerCommand(G, PointerAct::Press); }},
    {"hit", HitCommand, true},
    {"clear", ClearCommand, false, true},
    {"keydown", KeyDownCommand},
    {"enter", EnterCommand, false, true},
    {"dropdown", DropDownCommand},
    {"event", EventCommand},
    {"track-ended",
     [](const Words&) {
         ActiveMP31_StateChange(3);
         return std::string("ok");
     },
     false, true},
    {"player-state", PlayerStateCommand},
    {"restore",
     [](const Words&) {
         MainScreen_Resize();
         return std::string("ok");
     },
     false, true},
    {"close",
     [](const Words&) {
         ShutdownDisplay();
         return std::string("ok");
     },
     false, true},
    {"get", GetCommand, true},
    {"front", FrontCommand, true},
    {"state", StateCommand, true},
    {"set", SetCommand},
    {"put", PutCommand},
    {"settag", SetTagCommand},
    {"call", CallCommand},
    {"log", LogCommand, true, true},
    {"running", [](const Words&) { return std::string(Ended ? "0" : "1"); }, true, true},
    {"quit",
     [](const Words&) {
         Leaving = true;
         return std::string("ok");
     },
     true, true},
};

static std::string RunCommand(const std::string& Line)
{
    const std::size_t Start = Line.find_first_not_of(' ');
    const std::size_t Blank = std::min(Line.find(' ', Start), Line.size());
    const std::string Name = Line.substr(Start, Blank - Start);
    const std::string Rest = Blank < Line.size() ? Line.substr(Blank + 1) : "";
    const bool TakesRest = Name == "type" || Name == "choose"; // the rest of the line as it is
    const CommandRow* Command = nullptr;
    for (const CommandRow& Row : Commands)
        if (Name == Row.Name) Command = &Row;
    if (!Command && !TakesRest) return "error: no command " + Name;
    if (Ended && (TakesRest || !Command->Looks)) return "error: the program has ended";
    if (TakesRest) return Name == "type" ? TypeCommand(Rest) : ChooseCommand(Rest);
    const std::optional<Words> Given = SplitArguments(Rest);
    if (!Given) return "error: a quote stays open";
    if (Command->Alone && !Given->empty()) return "error: " + Name + " takes no argument";
    return Command->Run(*Given);
}

int main(int Count, char** Arguments)
{
    if (Count != 2) {
        std::cerr << "usage: pagodas-console GAMEDIR" << std::endl;
        return 2;
    }
    GameDirectory = Arguments[1];
    while (GameDirectory.size() > 1 && GameDirectory.back() == '/') GameDirectory.pop_back();
    FillPlatform();
    InitElements();
    SetAllHandlers();
    for (std::string Line; !Leaving && std::getline(std::cin, Line);) {
        if (!Line.empty() && Line.back() == '\r') Line.pop_back();
        if (Line.find_first_not_of(" \t") == std::string::npos || Line[0] == '#') continue;
        std::cout << RunCommand(Line) << std::endl;
    }
    return 0;
}
