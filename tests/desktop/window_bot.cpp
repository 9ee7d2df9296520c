// window_bot.cpp: plays "Bridges" in the real window with its eyes and a pointer. It sees
// screenshots and knows the layout and the faces of the tile set; what lies where it finds out by
// looking. At a dead end it mixes. "window-bot GAMEDIR OFFSET-X OFFSET-Y [PATIENCE]" prints how
// many tiles are left when the game is won or lost; with a PATIENCE of 20 it waits 20 times as long
// for the window.
#include "board/run_layouts.h"
#include "frame/elements.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

constexpr int Bridges = 19;
constexpr int OffsetX = 105, OffsetY = 85;

struct Spot {
    int X, Y, Z;
    double Left, Top; // pixels of the screen
    bool Gone = false;
};

static std::vector<Spot> Board;
static QImage Faces; // the tile set

static void Run(const std::string& Command)
{
    if (std::system(Command.c_str()) != 0) {
        std::cerr << "window-bot: failed: " << Command << std::endl;
        std::exit(1);
    }
}

static int Patience = 1;

static void Sleep(int Milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(Milliseconds * Patience));
}

// With a time between press and release, or a window manager may lose the release.
static void ClickAt(double X, double Y)
{
    Run("xdotool mousemove " + std::to_string(static_cast<int>(X)) + " " +
        std::to_string(static_cast<int>(Y)) + " mousedown 1");
    Sleep(60);
    Run("xdotool mouseup 1");
}

static QImage Look()
{
    Run("xdotool mousemove 5 580");
    Sleep(120);
    const std::string File = "/tmp/window-bot-" + std::to_string(getpid()) + ".bmp";
    Run("import -window root bmp:" + File);
    const QImage Screen(QString::fromStdString(File));
    std::remove(File.c_str());
    return Screen.convertToFormat(QImage::Format_RGB32);
}

static void Press(const Element& E)
{
    const Point Place = ScreenPlace(E);
    ClickAt(Place.X + E.Width / 2, Place.Y + E.Height / 2);
    Sleep(300);
}

// Under a box the bar is dim: its ivory menu button no longer shines.
static bool BoxIsUp(const QImage& Screen)
{
    const Point Place = ScreenPlace(imgButMenu);
    return qGreen(Screen.pixel(static_cast<int>(Place.X) + 12, static_cast<int>(Place.Y) + 8)) <
           170;
}

static bool StandsAt(int X, int Y, int Z)
{
    for (const Spot& S : Board)
        if (!S.Gone && S.X == X && S.Y == Y && S.Z == Z) return true;
    return false;
}

static bool AnyAt(int X, int Y, int Z)
{
    return StandsAt(X, Y - 1, Z) || StandsAt(X, Y, Z) || StandsAt(X, Y + 1, Z);
}

static bool IsFree(const Spot& S)
{
    for (int DX = -1; DX <= 1; ++DX)
        if (AnyAt(S.X + DX, S.Y, S.Z + 1)) return false;
    return !(AnyAt(S.X - 2, S.Y, S.Z) && AnyAt(S.X + 2, S.Y, S.Z));
}

// The face whose picture is most like what is seen at the spot.
static int FaceAt(const QImage& Screen, const Spot& S)
{
    const int Left = qRound(S.Left), Top = qRound(S.Top);
    int Best = 0;
    long long Least = -1;
    for (int Face = 1; Face <= FaceCount; ++Face) {
        const int CellX = (Face - 1) % 12 * 60, CellY = (Face - 1) / 12 * 60;
        long long Difference = 0;
        for (int Y = 6; Y < 46; Y += 2)
            for (int X = 13; X < 53; X += 2) {
                const QRgb A = Screen.pixel(Left + X, Top + Y),
                           B = Faces.pixel(CellX + X, CellY + Y);
                Difference += std::abs(qRed(A) - qRed(B)) + std::abs(qGreen(A) - qGreen(B)) +
                              std::abs(qBlue(A) - qBlue(B));
            }
        if (Least < 0 || Difference < Least) {
            Least = Difference;
            Best = Face;
        }
    }
    return Best;
}

static void LayOut(int AddX, int AddY)
{
    for (const TileRun& Run : FindRunLayout(Bridges)->Runs)
        for (int I = 0; I < Run.Count; ++I) {
            const double Left = OffsetX + AddX + 30.49 * Run.X - 30 + 60 * I + 7 * Run.Z - 7;
            const double Top = OffsetY + AddY + 30.49 * Run.Y - 30 - 7 * Run.Z + 7;
            Board.push_back({Run.X + 2 * I, Run.Y, Run.Z, Left, Top});
        }
}

static int TilesLeft()
{
    int Left = 0;
    for (const Spot& S : Board) Left += !S.Gone;
    return Left;
}

// Takes pairs until a box comes up or nothing is left to see.
static void PlayPairs()
{
    while (true) {
        const QImage Screen = Look();
        if (BoxIsUp(Screen)) return;
        std::vector<Spot*> OfFace[FaceCount + 1];
        bool Played = false;
        for (Spot& S : Board) {
            if (S.Gone || !IsFree(S)) continue;
            OfFace[FaceAt(Screen, S)].push_back(&S);
        }
        // One pair of each face before the next look: a pair taken never blocks another.
        for (std::vector<Spot*>& Free : OfFace) {
            if (Free.size() < 2) continue;
            for (Spot* S : {Free[0], Free[1]}) {
                ClickAt(S->Left + 33, S->Top + 26);
                S->Gone = true;
            }
            Played = true;
        }
        if (!Played) return;
    }
}

int main(int Count, char** Arguments)
{
    if (Count != 4 && Count != 5) {
        std::cerr << "usage: window-bot GAMEDIR OFFSET-X OFFSET-Y [PATIENCE]" << std::endl;
        return 2;
    }
    if (Count == 5) Patience = std::atoi(Arguments[4]);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication Application(Count, Arguments);
    Faces =
        QImage(QString(Arguments[1]) + "/DATA/TS0001", "PNG").convertToFormat(QImage::Format_RGB32);
    if (Faces.isNull()) {
        std::cerr << "window-bot: no tile set" << std::endl;
        return 1;
    }
    LayOut(std::atoi(Arguments[2]), std::atoi(Arguments[3]));
    InitElements();
    PlayPairs();
    for (int Mix = 0; Mix < 2 && TilesLeft() > 0; ++Mix) {
        Press(imgNoMovesMixOK);
        Press(imgMixFinesse);
        PlayPairs();
    }
    if (TilesLeft() > 0) Press(imgNoMovesOK); // the box stands at the same place
    std::cout << TilesLeft() << std::endl;
    return 0;
}
