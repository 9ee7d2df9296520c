// monkey.cpp: random events to the whole program through the hit test, and after each of them what
// must hold whatever was pressed. "monkey EVENTS [SEED]".
#include "media/media.h"
#include "tests/common/game_dir.h"

#include <cstdlib>
#include <iostream>
#include <random>
#include <vector>

static std::mt19937 Chance;
static long long Event = 0, Now = 0;
static bool Ended = false;
static std::string Last; // what was done

static int Draw(int Count)
{
    return static_cast<int>(Chance() % static_cast<unsigned>(Count));
}

static void Demand(bool Holds, const char* What, const Element* Where = nullptr)
{
    if (Holds) return;
    std::cerr << "monkey: after event " << Event << " (" << Last << "): " << What;
    if (Where) std::cerr << ": " << ElementText(*Where);
    std::cerr << std::endl;
    std::exit(1);
}

static int CountShown(std::initializer_list<const Element*> Panels)
{
    int Count = 0;
    for (const Element* Panel : Panels) Count += Panel->Visible;
    return Count;
}

// Every image button and where it stands when nobody presses it.
struct ButtonRow {
    const Element& Button;
    float Left, Top;
};
static std::vector<ButtonRow> Buttons;

static void FindButtons()
{
    for (const Element& E : Elements)
        if (E.Does.Press || E.Does.Action) Buttons.push_back({E, E.Left, E.Top});
}

// One button stands a pixel right and down while the latch is set, none while it is not.
static void CheckLatch()
{
    int Moved = 0;
    for (const ButtonRow& Row : Buttons) {
        const float Step = Row.Button.Left - Row.Left;
        Demand(Row.Button.Top - Row.Top == Step, "a button moved askew", &Row.Button);
        if (Row.Button.Id == imgHelpBut(1).Id && Step > 0) {
            // It stands pressed while the help opens, and a press moves it once more.
            Demand(Step <= 2, "the first page's button went astray");
            continue;
        }
        Demand(Step == 0 || Step == 1, "a button is not at its place", &Row.Button);
        Moved += Step == 1;
    }
    Demand(Moved <= 1, "two buttons stand pressed");
    Demand(GameState.ButtonDown == 1 || Moved == 0, "a button stands pressed without the latch");
}

// Only the open screen holds its large picture, and under the menu those that a press has loaded.
static void CheckPictures()
{
    if (picMenu.Visible || picExit.Visible) return;
    for (const Element* Screen :
         {&picOptions, &picHistory, &picScores, &picProfile, &picLayouts, &picHelp})
        Demand(Screen->Visible || Screen->Shows == NoPicture(), "a closed screen holds its picture",
               Screen);
}

static void CheckProgram()
{
    CheckLatch();
    CheckPictures();
    const int Full =
        CountShown({&picOptions, &picHistory, &picScores, &picProfile, &picLayouts, &picHelp});
    const int Boxes =
        CountShown({&picMenu, &picExit, &picEnd, &picNoMoves, &picNoMovesMix, &picGameWon});
    Demand(Full <= 1, "more than one full-size screen is up");
    Demand(Boxes <= 1, "more than one box is up");
    Demand(Full == 0 || Boxes == 0, "a box and a full-size screen are up");
    Demand(Ended || picContainer.Visible == (Full == 1),
           "picContainer does not follow the screens");
    Demand(picBlack.Visible == (Boxes == 1), "the dim layer does not follow the boxes");
    Demand(GameState.ButtonDown == 0 || GameState.ButtonDown == 1,
           "the latch is neither up nor down");
    Demand(imgbutStart.Visible != imgbutEnd.Visible, "start and end are not one");
    Demand(!tmrAgility.Enabled || !tmrPause.Enabled, "clock and pause run at once");
    const bool Clock = tmrAgility.Enabled || tmrPause.Enabled;
    const bool MayRun = GameState.GameType == Agility && GameState.GameRunning == 1;
    const bool Away = GameState.RestoreDisplayPending == 1;
    Demand(!Clock || (MayRun && Full + Boxes == 0 && !Away), "the clock runs where it must stand");
    Demand(Clock || !MayRun || Full + Boxes > 0 || Away, "the clock stands where it must run");
    for (int Type = 1; Type <= 3; ++Type)
        Demand(GameState.GameRunning == 0 ||
                   picGamePanel(Type).Visible == (Type == GameState.GameType),
               "the game panel is of another type");
    int Visible = 0;
    for (int Tile = 1; Tile <= TileCount; ++Tile) Visible += imgTile(Tile).Visible;
    Demand(GameState.GameRunning == 0 || Visible == GameState.TilesLeft,
           "TilesLeft is not the visible tiles");
}

static float X = 500, Y = 300;

static void MoveSomewhere()
{
    X = static_cast<float>(Draw(1024));
    Y = static_cast<float>(Draw(768));
}

// A place inside some visible element: more goes on there than at any place of the screen.
static void MoveToElement()
{
    for (int Try = 0; Try < 30; ++Try) {
        const Element& E = Elements[Draw(ElementCount)];
        if (E.Kind == ElementKind::Screen || E.Kind == ElementKind::Timer ||
            E.Kind == ElementKind::Store || !IsShown(E) || E.Width < 1)
            continue;
        if (E.Id == lblCloseGame.Id && Draw(4) > 0) continue; // a start costs as much as 50 events
        const Point Place = ScreenPlace(E);
        X = Place.X + static_cast<float>(Draw(static_cast<int>(E.Width)));
        Y = Place.Y + static_cast<float>(Draw(static_cast<int>(E.Height) + 1));
        return;
    }
    MoveSomewhere();
}

static std::string NameOf(const Element* E)
{
    return E ? ElementText(*E) : "nothing";
}

static void PassTime()
{
    Now += Draw(1500);
    RunDueTimers(Now);
    Last = "time";
}

static MouseButton SomeButton()
{
    const int Chosen = Draw(12);
    return Chosen == 0 ? MouseButton::Right : Chosen == 1 ? MouseButton::Middle : MouseButton::Left;
}

static void PressHere()
{
    const MouseButton Button = SomeButton();
    SendMouseMove(X, Y);
    Last = "press on " + NameOf(SendMouseDown(Button, X, Y));
    if (Draw(10) == 0) MoveSomewhere(); // a drag
    if (!Ended) SendMouseUp(Button, X, Y);
}

static void PressTwice()
{
    PressHere();
    if (!Ended) PressHere();
}

// Two presses before the first release, on two elements and with any buttons.
static void PressTwo()
{
    const MouseButton First = SomeButton(), Second = SomeButton();
    Last = "presses on " + NameOf(SendMouseDown(First, X, Y));
    MoveToElement();
    SendMouseMove(X, Y);
    Last += " and " + NameOf(SendMouseDown(Second, X, Y));
    if (Ended) return;
    SendMouseUp(Second, X, Y);
    CheckProgram();
    if (!Ended) SendMouseUp(First, X, Y);
}

// A run of pairs, so that games come to their ends.
static void PlayPairs()
{
    for (int Turn = Draw(60); Turn > 0 && GameState.MoveCount > 0; --Turn) {
        const int Pair = 1 + Draw(GameState.MoveCount);
        for (const int Tile : {+GameState.OpenPairA(Pair), +GameState.OpenPairB(Pair)})
            if (Tile > 0 && imgTile(Tile).Visible && !picBlack.Visible && !picContainer.Visible)
                PressAt(imgTile(Tile));
        CheckProgram();
    }
    Last = "a run of pairs";
}

static void UseKeys()
{
    constexpr const char* Keys[] = {"up", "down", "left", "right", "a"};
    SendKeyDown(Keys[Draw(5)], Draw(2) == 0, Draw(4) == 0, false);
    if (const Element* Box = Focused()) {
        SendText(*Box, Draw(3) == 0 ? "" : "Player " + std::to_string(Draw(40)));
        if (Draw(2) == 0) SendKeyPress(*Box, 13);
    }
    Last = "keys";
}

static void ChoosePlayer()
{
    const Element& Box = cboPlayerList(1 + Draw(12));
    if (!IsShown(Box) || Box.Items.empty()) return;
    if (Draw(2) == 0) SendDropDown(Box); // the wheel and the keys choose without it
    SendChoice(Box, Box.Items[static_cast<std::size_t>(Draw(static_cast<int>(Box.Items.size())))]);
    Last = "a choice in " + ElementText(Box);
}

static void StartAgain()
{
    Ended = false;
    ReleaseButton(); // the finger of the run that ended
    GameState = GameStateRecord();
    InitElements();
    SetAllHandlers();
    SplashLoad();
    for (int Step = 0; Step < 60; ++Step) RunDueTimers(Now += 100);
    Last = "a new start";
}

static void DoSomething()
{
    if (GameState.RestoreDisplayPending == 1) { // away: time passes, no pointer reaches it
        PassTime();
        CheckProgram();
        if (Draw(3) == 0) MainScreen_Resize();
        Last = "back on the screen";
        return;
    }
    switch (Draw(15)) {
    case 0:
        PassTime();
        break;
    case 1:
        UseKeys();
        break;
    case 2:
        ChoosePlayer();
        break;
    case 3:
        MoveSomewhere();
        PressHere();
        break;
    case 4:
        ActiveMP31_StateChange(Draw(5));
        Last = "the player's state";
        break;
    case 5:
        PlayPairs();
        break;
    case 6:
        MoveToElement();
        SendMouseMove(X, Y);
        Last = "a move";
        break;
    case 7:
        MoveToElement();
        PressTwo();
        break;
    case 8:
        MoveToElement();
        PressTwice();
        break;
    default:
        MoveToElement();
        PressHere();
        break;
    }
}

int main(int Count, char** Arguments)
{
    const long long Events = Count > 1 ? std::atoll(Arguments[1]) : 100000;
    Chance.seed(Count > 2 ? static_cast<unsigned>(std::atoi(Arguments[2])) : 1);
    BootGame();
    FindButtons();
    Now = 6100;
    Platform.Milliseconds = [] { return Now; };
    Platform.End = [] { Ended = true; };
    int Starts = 1;
    for (Event = 1; Event <= Events; ++Event) {
        DoSomething();
        CheckProgram();
        StaleRectangles().clear();
        if (Ended) {
            StartAgain();
            CheckProgram();
            ++Starts;
        }
    }
    int Games = 0;
    for (int Index = 1; Index <= 360; ++Index)
        Games += GameState.LayoutWon(Index) + GameState.LayoutLost(Index);
    std::cout << Events << " events, " << Starts << " starts, " << Games << " games won or lost"
              << std::endl;
    std::filesystem::remove_all(GameDirectory);
    return 0;
}
