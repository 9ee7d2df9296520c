// kit.h: panels, buttons, text and signs: the one look of all screens. The rules behind it stand in
// ../STYLE.md.
//
// Everything draws in pixels of the design. Pictures of elements are made at twice that size.
// Light comes from the upper right: walls and shades lie left and below, as on the tiles.
#pragma once

#include "art.h"

constexpr int Sharpness = 2; // pixels of a picture to one pixel of the design

inline constexpr const char* PlateDark = "#06130d"; // ground of a sunken plate
inline constexpr const char* PlateLight = "#0d2418";
inline constexpr const char* SignJade = "#17583e"; // drawn signs on ivory
inline constexpr const char* SignRed = "#b8281c";
inline constexpr const char* SignGold = "#b97f16";
inline constexpr const char* QuietText = "#c8cebe"; // second text on jade
inline constexpr const char* DisabledFace = "#324a3e";
inline constexpr const char* DisabledText = "#b6c2b2";
inline constexpr const char* Parchment = "#f3e4bd";
inline constexpr const char* ParchmentDark = "#dfc893";

// kit_panels.cpp
QImage NewPicture(double Width, double Height);           // transparent, Sharpness times as large
void BeginDrawing(QPainter& P, QImage& Picture);          // of NewPicture; in pixels of the design
QPainterPath Scalloped(const QRectF& Box, double Radius); // with corners cut out in arcs
void SoftShadow(QPainter& P, const QPainterPath& Shape, double Blur, double Strength,
                double Dx = -1.5, double Dy = 2);
void FillJade(QPainter& P, const QPainterPath& Shape, const QColor& Light1 = PanelLight,
              const QColor& Dark1 = PanelDark);
void DrawGoldLine(QPainter& P, const QPainterPath& Shape, double Width = 2);
void DrawPanel(QPainter& P, const QRectF& Box, double Corner = 9); // jade, gold line, shadow
void DrawInset(QPainter& P, const QRectF& Box, double Radius = 4); // jade one step deeper
void DrawPlate(QPainter& P, const QRectF& Box, double Radius = 4); // sunken, for text or digits
void DrawSocket(QPainter& P, const QRectF& Button);                // the hollow a button sits in
void DrawParchment(QPainter& P, const QRectF& Box, double Radius = 3);
void DrawRule(QPainter& P, double X1, double X2, double Y); // a gold line with a lozenge
void DrawEmblem(QPainter& P, const QRectF& Box);            // a golden pagoda as large as fits
// Hills and a pagoda, cut a little into the foot of a panel.
void DrawReliefScene(QPainter& P, const QRectF& Box);

// kit_text.cpp. A text that is wider than its box, under 12 px high or too weak on what is painted
// beneath it is fatal: the maker measures what it draws.
enum class Weight { Regular, Bold, Serif };
struct TextStyle {
    double Size = 14;
    Weight Kind = Weight::Regular;
    QColor Colour = QColor(IvoryText);
    Qt::Alignment Place = Qt::AlignCenter;
    bool Shadow = true; // a dark one of 1 px, for light text on jade
    double Spacing = 0; // between letters
};
double TextWidth(const QString& Text, const TextStyle& Style);
void DrawText(QPainter& P, const QRectF& Box, const QString& Text, const TextStyle& Style);
// Breaks at blanks and at \n; answers the height that the lines take. LineStep in sizes.
double DrawParagraph(QPainter& P, const QRectF& Box, const QString& Text, const TextStyle& Style,
                     double LineStep = 1.4);
void DrawTitle(QPainter& P, const QRectF& Box, const QString& Text, double Size,
               Qt::Alignment Place = Qt::AlignCenter); // gold, serif
double Contrast(const QColor& A, const QColor& B);     // 1 .. 21

// kit_signs.cpp: the drawn signs of buttons and notes
enum class Sign {
    None,
    Mix,
    Undo,
    Pair,
    Peek,
    Pause,
    Push,
    Accept,
    Erase,
    Start,
    End,
    Menu,
    Layout,
    Options,
    Scores,
    History,
    Profile,
    Help,
    Packs,
    Exit,
    Back,
    Yes,
    No,
    Play,
    Lock,
    Differ,
    Sleep,
    Point,
    Flame,
    Star,
    Short,
    Book,
    Quill,
    Clock,
    Window,
    FullScreen,
    Clear,
    Up,
    Down,
    Dice,
    Hand,
    Finesse,
    Agility,
    Wisdom,
};
struct SignInk {
    QColor Main = QColor(SignJade), Accent = QColor(SignRed), Gold = QColor(SignGold),
           Ground = QColor(IvoryLight);
};
void DrawSign(QPainter& P, Sign Which, const QRectF& Box, const SignInk& Colours = {});
QPainterPath PagodaPath(int Tiers, double Width = 100, double Height = 100); // the game's emblem

// kit_buttons.cpp
enum class ButtonState { Rest, Lit, Disabled };
// Middle sets sign and caption into the middle of the face; Column starts them at its left, so that
// those of buttons over one another stand in line.
enum class ButtonPlace { Middle, Column };
void DrawButton(QPainter& P, const QRectF& Box, Sign Which, const QString& Caption,
                ButtonState State, ButtonPlace Where = ButtonPlace::Middle);
void DrawLamp(QPainter& P, const QRectF& Box, bool On);
void DrawOptionBall(QPainter& P, const QRectF& Box, bool On);
