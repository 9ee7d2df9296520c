// shield.cpp: coats of arms - a shield with a divided field, a charge on it, and what stands behind

#include "drawing.h"
#include "kinds.h"

static const QMap<QString, const char*> Tinctures = {
    {"gules", "#b8141e"},    {"azure", "#1c3f9a"}, {"vert", "#14703a"},   {"purpure", "#6a1f7a"},
    {"sable", "#1d1d22"},    {"or", "#f0c02a"},    {"argent", "#f2f2ee"}, {"tenne", "#b8621a"},
    {"sanguine", "#7a1222"}, {"bleu", "#5a9ad8"},  {"olive", "#5a6132"},  {"sand", "#c8b27a"},
    {"navy", "#0f2148"},     {"sky", "#4a9ae0"},   {"steel", "#6a7684"},
};

// The outlines: a start, then corners of a line (two numbers) or of a curve (six numbers).
static const QMap<QString, std::vector<std::vector<double>>> ShieldRims = {
    {"heater", {{8, 6}, {92, 6}, {92, 52, 82, 80, 50, 97}, {18, 80, 8, 52, 8, 6}}},
    {"french",
     {{8, 6},
      {92, 6},
      {92, 74},
      {92, 84, 80, 86, 68, 87},
      {58, 88, 52, 92, 50, 97},
      {48, 92, 42, 88, 32, 87},
      {20, 86, 8, 84, 8, 74},
      {8, 6}}},
    {"swiss",
     {{8, 10},
      {24, 2, 36, 12, 50, 6},
      {64, 12, 76, 2, 92, 10},
      {92, 52, 84, 80, 50, 97},
      {16, 80, 8, 52, 8, 10}}},
    {"round", {{6, 50}, {6, -8, 94, -8, 94, 50}, {94, 108, 6, 108, 6, 50}}},
    {"oval", {{16, 50}, {16, -12, 84, -12, 84, 50}, {84, 112, 16, 112, 16, 50}}},
    {"kite",
     {{50, 2},
      {80, 2, 92, 22, 86, 40},
      {80, 66, 64, 84, 50, 99},
      {36, 84, 20, 66, 14, 40},
      {8, 22, 20, 2, 50, 2}}},
    {"square",
     {{10, 8}, {90, 8}, {90, 80}, {90, 92, 70, 94, 50, 97}, {30, 94, 10, 92, 10, 80}, {10, 8}}},
    {"scutum",
     {{22, 3},
      {40, 0, 60, 0, 78, 3},
      {83, 35, 83, 65, 78, 97},
      {60, 100, 40, 100, 22, 97},
      {17, 65, 17, 35, 22, 3}}},
    {"hex", {{50, 2}, {93, 26}, {93, 74}, {50, 98}, {7, 74}, {7, 26}, {50, 2}}},
    {"lozenge", {{50, 2}, {96, 50}, {50, 98}, {4, 50}, {50, 2}}},
    {"zulu",
     {{50, 0},
      {78, 14, 84, 34, 80, 50},
      {84, 66, 78, 86, 50, 100},
      {22, 86, 16, 66, 20, 50},
      {16, 34, 22, 14, 50, 0}}},
    {"targe", {{5, 50}, {5, -9, 95, -9, 95, 50}, {95, 109, 5, 109, 5, 50}}},
    {"polish",
     {{14, 16},
      {28, 20, 32, 8, 30, 4},
      {70, 4},
      {68, 8, 72, 20, 86, 16},
      {80, 36, 92, 56, 84, 76},
      {74, 90, 60, 88, 50, 97},
      {40, 88, 26, 90, 16, 76},
      {8, 56, 20, 36, 14, 16}}},
    {"buckler", {{8, 50}, {8, -6, 92, -6, 92, 50}, {92, 106, 8, 106, 8, 50}}},
    {"cart",
     {{20, 10},
      {36, 10, 40, 2, 50, 2},
      {60, 2, 64, 10, 80, 10},
      {96, 28, 90, 60, 78, 80},
      {66, 94, 58, 92, 50, 99},
      {42, 92, 34, 94, 22, 80},
      {10, 60, 4, 28, 20, 10}}},
};

struct Shield {
    const Recipe& R;
    QPainterPath Rim;
    QColor A, B, C; // tinctures of the field
    QStringList Extras;
};

static QColor Tincture(const Recipe& R, const char* Key, const QString& Default)
{
    const QString Name = Text(R, Key, Default);
    if (!Tinctures.contains(Name)) FatalError(R.Place + ": no tincture is called " + Quoted(Name));
    return Tinctures[Name];
}

static QPainterPath RimNamed(const QString& Name, const Recipe& R)
{
    if (!ShieldRims.contains(Name)) FatalError(R.Place + ": no shield is called " + Quoted(Name));
    QPainterPath Path;
    for (const std::vector<double>& N : ShieldRims[Name]) {
        if (Path.elementCount() == 0)
            Path.moveTo(N[0], N[1]);
        else if (N.size() == 2)
            Path.lineTo(N[0], N[1]);
        else
            Path.cubicTo(N[0], N[1], N[2], N[3], N[4], N[5]);
    }
    Path.closeSubpath();
    return Path;
}

// ---------------------------------------------------------------- the divided field

// Divisions of straight pieces: each is filled with the second tincture over the first.
static const QMap<QString, std::vector<Points>> Divisions = {
    {"pale2", {{{50, -10}, {120, -10}, {120, 110}, {50, 110}}}},
    {"fess2", {{{-10, 46}, {110, 46}, {110, 126}, {-10, 126}}}},
    {"quarter",
     {{{50, -10}, {120, -10}, {120, 46}, {50, 46}}, {{-10, 46}, {50, 46}, {50, 116}, {-10, 116}}}},
    {"bend2", {{{-10, -10}, {110, 110}, {-10, 110}}}},
    {"bendsin2", {{{110, -10}, {-10, 110}, {110, 110}}}},
    {"saltire2", {{{-10, -10}, {50, 48}, {-10, 106}}, {{110, -10}, {50, 48}, {110, 106}}}},
    {"pale", {{{36, -10}, {64, -10}, {64, 110}, {36, 110}}}},
    {"fess", {{{-10, 34}, {110, 34}, {110, 60}, {-10, 60}}}},
    {"bend", {{{-10, -18}, {18, -18}, {112, 86}, {112, 112}, {96, 112}, {-10, 10}}}},
    {"cross",
     {{{41, -10}, {59, -10}, {59, 110}, {41, 110}}, {{-10, 34}, {110, 34}, {110, 52}, {-10, 52}}}},
    {"saltire",
     {{{-6, 0}, {8, -8}, {106, 92}, {94, 104}}, {{106, 0}, {92, -8}, {-6, 92}, {6, 104}}}},
    {"chevron", {{{50, 34}, {110, 88}, {110, 112}, {50, 58}, {-10, 112}, {-10, 88}}}},
    {"chevrons",
     {{{50, 14}, {110, 58}, {110, 71}, {50, 27}, {-10, 71}, {-10, 58}},
      {{50, 40}, {110, 84}, {110, 97}, {50, 53}, {-10, 97}, {-10, 84}},
      {{50, 66}, {110, 110}, {110, 123}, {50, 79}, {-10, 123}, {-10, 110}}}},
    {"chief", {{{-10, -10}, {110, -10}, {110, 28}, {-10, 28}}}},
    {"base", {{{-10, 66}, {110, 66}, {110, 126}, {-10, 126}}}},
    {"pile", {{{8, 0}, {92, 0}, {50, 86}}}},
    {"pall",
     {{{0, -6},
       {16, -10},
       {50, 34},
       {84, -10},
       {100, -6},
       {100, 8},
       {60, 52},
       {60, 110},
       {40, 110},
       {40, 52},
       {0, 8}}}},
    {"canton", {{{-10, -10}, {48, -10}, {48, 42}, {-10, 42}}}},
    {"embattled",
     {{{-10, 40},
       {10, 40},
       {10, 52},
       {26, 52},
       {26, 40},
       {42, 40},
       {42, 52},
       {58, 52},
       {58, 40},
       {74, 40},
       {74, 52},
       {90, 52},
       {90, 40},
       {110, 40},
       {110, -10},
       {-10, -10}}}},
};

// Every second wedge round the middle.
static void DrawWedges(QPainter& G, const QColor& With, int Count)
{
    const double Step = 2 * M_PI / Count;
    for (int I = 0; I < Count; I += 2) {
        const double First = I * Step, Next = (I + 1) * Step;
        Fill(G,
             Polygon({{50, 48},
                      {50 + 120 * std::cos(First), 48 + 120 * std::sin(First)},
                      {50 + 120 * std::cos(Next), 48 + 120 * std::sin(Next)}}),
             With);
    }
}

static void DrawBentWedges(QPainter& G, const QColor& With)
{
    for (int I = 0; I < 6; ++I) {
        Points Rim = {{50, 48}};
        for (const int Edge : {0, 1})
            for (int Step = 0; Step < 15; ++Step) {
                const double Far = Edge ? 84 - Step * 6 : Step * 6;
                const double A = I * M_PI / 3 + Edge * M_PI / 6 + Far * .022;
                Rim.push_back({50 + Far * std::cos(A), 48 + Far * std::sin(A)});
            }
        Fill(G, Polygon(Rim), With);
    }
}

static void DrawWaves(QPainter& G, const QColor& With)
{
    for (const double Y : {14, 38, 62, 86}) {
        Points Rim;
        for (int I = 0; I < 7; ++I) Rim.push_back({-10.0 + I * 20, Y - I % 2 * 5});
        for (int I = 6; I >= 0; --I) Rim.push_back({-10.0 + I * 20, Y + 10 - I % 2 * 5});
        Fill(G, ClosedCurve(Rim, .6), With);
    }
}

static void DrawRepeats(QPainter& G, const QString& Division, const QColor& With)
{
    for (int I = 0; I < 9; ++I) {
        const double At = I * 24.0;
        if (Division == "barry") FillBox(G, -10, 6 + At, 120, 12, With);
        if (Division == "paly") FillBox(G, 8 + At, -10, 12, 120, With);
        if (Division == "bendy") {
            const double X = -120 + I * 32;
            Fill(G, Polygon({{X, -10}, {X + 16, -10}, {X + 136, 110}, {X + 120, 110}}), With);
        }
        for (int J = 0; J < 9; ++J) {
            if (Division == "checky" && (I + J) % 2)
                FillBox(G, I * 14 - 6, J * 14 - 6, 14, 14, With);
            if (Division == "lozengy")
                Fill(G,
                     Moved(Polygon({{0, -13}, {9, 0}, {0, 13}, {-9, 0}}), I * 18 - 13, J * 26 - 28),
                     With);
        }
    }
}

static void DrawField(QPainter& G, const Shield& Own)
{
    const QString Division = Text(Own.R, "div");
    FillBox(G, -10, -10, 120, 120, Own.A);
    for (const Points& Piece : Divisions.value(Division)) Fill(G, Polygon(Piece), Own.B);
    DrawRepeats(G, Division, Own.B);
    if (Division == "gyronny") DrawWedges(G, Own.B, 16);
    if (Division == "rays") DrawWedges(G, Own.B, 32);
    if (Division == "spiral") DrawBentWedges(G, Own.B);
    if (Division == "wavy") DrawWaves(G, Own.B);
    if (Division == "bordure") Stroke(G, Own.Rim, Own.B, 20);
    if (Division == "flaunch") {
        Fill(G, Ellipse(-6, 50, 30, 60), Own.B);
        Fill(G, Ellipse(106, 50, 30, 60), Own.B);
    }
    if (Division == "tierced") {
        FillBox(G, 34, -10, 33, 120, Own.B);
        FillBox(G, 67, -10, 60, 120, Own.C);
    }
    if (Division == "tiercedf") {
        FillBox(G, -10, 33, 120, 31, Own.B);
        FillBox(G, -10, 64, 120, 60, Own.C);
    }
}

// Small signs in staggered rows over the whole field.
static void StrewSigns(QPainter& G, double StepX, double StepY, const Draft& DrawSign)
{
    for (int Row = 0; Row < 6; ++Row)
        for (int I = 0; I < 6; ++I) {
            G.save();
            G.translate(12 + Row % 2 * StepX / 2 + I * StepX, 15 + Row * StepY);
            DrawSign(G);
            G.restore();
        }
}

static void DrawFabric(QPainter& G, const Shield& Own)
{
    const QString Fabric = Text(Own.R, "fab");
    const QColor With = Tincture(Own.R, "fc", Fabric == "stars" ? "argent" : "or");
    if (Fabric == "studs")
        for (const double Ring : {40, 24})
            for (int I = 0; I < 12; ++I) {
                const double A = I * M_PI / 6;
                Outline(G, Circle(50 + Ring * std::cos(A), 50 + Ring * std::sin(A), 3.2), "#f0d884",
                        "#5a4a20", .8);
            }
    if (Fabric == "ermine")
        StrewSigns(G, 18, 16, [](QPainter& S) {
            Fill(S, Polygon({{0, -5}, {4.5, 5}, {0, 3}, {-4.5, 5}}), "#1a1a1e");
        });
    if (Fabric == "fleur") {
        const QPainterPath Lily =
            Fitted(GlyphPath(FontFile::Symbola, U'⚜'), QRectF(-7, -8, 14, 16));
        StrewSigns(G, 22, 20, [&](QPainter& S) { Fill(S, Lily, With); });
    }
    if (Fabric == "stars")
        StrewSigns(G, 24, 20, [&](QPainter& S) { Fill(S, Star(2, 0, 6), With); });
    if (Fabric == "camo") {
        Random Chance{5};
        const std::vector<QColor> Tones = {"#3a4420", "#7a7a4a", "#2a2e18", "#9a9060"};
        for (int I = 0; I < 16; ++I) {
            const double X = Uniform(Chance, 0, 100), Y = Uniform(Chance, 0, 100);
            Fill(G,
                 ClosedCurve({{X - 14, Y},
                              {X - 4, Y - 8},
                              {X + 12, Y - 5},
                              {X + 16, Y + 4},
                              {X + 2, Y + 9}}),
                 Cycled(Tones, I));
        }
    }
    if (Fabric == "rings")
        for (const double Radius : {12, 24, 36}) Stroke(G, Circle(50, 50, Radius), With, 4);
    if (Fabric == "weave")
        for (int I = 0; I < 14; ++I) {
            StrokeLine(G, I * 14 - 80, 0, I * 14 + 20, 100, Alpha(With, .8), 3);
            StrokeLine(G, I * 14 + 20, 0, I * 14 - 80, 100, Alpha(With, .8), 3);
        }
}

// ---------------------------------------------------------------- the charge

// "relief:🦁" in the metal cm, "own:🐺" in its own colours, "glyph:⚜" of Symbola, "sans:Λ".
static void DrawCharge(QPainter& G, const Recipe& R, const QString& Word, const QRectF& Room)
{
    const QString Kind = Word.section(':', 0, 0), Sign = Word.section(':', 1);
    const std::vector<QColor>& Metal = MetalStops(Text(R, "cm", "gold"), R);
    if (Kind == "relief" || Kind == "own") {
        const QImage Picture = EmojiImage(Sign);
        const bool Relieved = Kind == "relief";
        // A dark rim round metal, a light one round colours: the charge stands off the field.
        DrawHalo(G, Picture, Relieved ? Dark(Metal[0], .35) : QColor("#ffffff"),
                 Room.adjusted(-1.9, -1.9, 1.9, 1.9), 1.9);
        DrawFitted(G, Relieved ? Relief(Picture, Metal) : Picture, Room);
        return;
    }
    if (Kind != "glyph" && Kind != "sans") FatalError(R.Place + ": no charge is like " + Word);
    const QPainterPath Glyph = Fitted(
        GlyphPath(Kind == "sans" ? FontFile::Sans : FontFile::Symbola, Sign.toUcs4().value(0)),
        Room);
    Outline(G, Glyph, Metal[0], Metal[0], 3.6);
    Fill(G, Glyph,
         Linear(Room.left(), Room.top(), Room.right(), Room.bottom(),
                {Metal[3], Metal[2], Metal[1]}));
}

static void DrawCharges(QPainter& G, const Shield& Own)
{
    const double Y = Number(Own.R, "cy", 47), Size = Number(Own.R, "cs", 66);
    if (Has(Own.R, "ch"))
        DrawCharge(G, Own.R, Text(Own.R, "ch"), QRectF(50 - Size / 2, Y - Size / 2, Size, Size));
    if (Has(Own.R, "ch3")) // three small ones, two above one
        for (const auto& [X, Y3] : Table<double, double>{{29, 27}, {71, 27}, {50, 66}})
            DrawCharge(G, Own.R, Text(Own.R, "ch3"), QRectF(X - 14, Y3 - 14, 28, 28));
    const int Stars = Whole(Own.R, "stars");
    for (int I = 0; I < Stars; ++I)
        Outline(G, Star(50 + (I - (Stars - 1) / 2.0) * 13, Number(Own.R, "sy", 17), 6.4), "#ffe27a",
                "#7f713d", 1);
    for (int I = 0; I < Whole(Own.R, "chev"); ++I)
        Outline(G,
                Polygon({{50, 66}, {74, 78}, {74, 84}, {50, 72}, {26, 84}, {26, 78}})
                    .translated(0, I * 9),
                "#f0d060", "#5a4410", 1);
}

// ---------------------------------------------------------------- what stands behind and above

static void DrawSwords(QPainter& G, const Shield&)
{
    for (const double Side : {-1, 1}) {
        G.save();
        G.translate(50, 50);
        G.rotate(Side * 45);
        Outline(G, Polygon({{-3, -70}, {0, -77}, {3, -70}, {3, 40}, {-3, 40}}),
                Linear(-3, 0, 3, 0, {"#ffffff", "#9aa6b4"}), "#3a4450", 1);
        Outline(G, Rounded(-13, 40, 26, 5, 2), "#e0b83a", "#5a4410", 1);
        Outline(G, Rounded(-3, 45, 6, 14, 2), "#6a3a1a", "#2a1608", 1);
        Outline(G, Circle(0, 61, 4.6), "#e0b83a", "#5a4410", 1);
        G.restore();
    }
}

// Raised wings: few broad feathers, so that they still read at the size of a tile.
static void DrawWings(QPainter& G, const Shield& Own)
{
    const QColor Tint = Colour(Own.R, "wc", "#e8c85a");
    for (const double Side : {1, -1}) {
        G.save();
        if (Side < 0) {
            G.translate(100, 0);
            G.scale(-1, 1);
        }
        for (int I = 3; I >= 0; --I) {
            const double Y = I * 15, In = I * 2;
            const QPainterPath Feather = ClosedCurve({{66, 40 + Y * .6},
                                                      {88, 4 + Y},
                                                      {112 - In, -16 + Y},
                                                      {117 - In, 2 + Y},
                                                      {104, 26 + Y},
                                                      {84, 52 + Y * .6}},
                                                     .6);
            Outline(G, Feather,
                    Linear(66, 0, 116, 0, {Dark(Tint, .25), Tint, Light(Tint, I % 2 ? .3 : .65)}),
                    Dark(Tint, .65), 2);
            Stroke(G, Curve({{78, 40 + Y * .7}, {96, 16 + Y}, {109 - In, -2 + Y}}), Dark(Tint, .4),
                   1.2);
        }
        G.restore();
    }
}

static void DrawLaurel(QPainter& G, const Shield& Own)
{
    const QColor Tint = Colour(Own.R, "lc", "#4a9a3a");
    for (const double Side : {-1, 1}) {
        Points Stem;
        for (int I = 0; I <= 10; ++I) {
            const double T = M_PI * (1 - .82 * I / 10);
            Stem.push_back({50 + Side * 56 * std::sin(T), 52 - 56 * std::cos(T)});
        }
        Stroke(G, Curve(Stem), Dark(Tint, .4), 2.6);
        for (int I = 0; I < 9; ++I) {
            const double T = M_PI * (1 - .80 * (I + .6) / 9);
            const double X = 50 + Side * 56 * std::sin(T), Y = 52 - 56 * std::cos(T);
            for (const double Out : {-1, 1})
                Outline(G,
                        Ellipse(X + Out * 5.5 * std::sin(T) * Side, Y - Out * 5.5 * std::cos(T),
                                10.5, 4.4, Side * (Degrees(T) - 90 - Out * 34)),
                        Out > 0 ? Tint : Light(Tint, .2), Dark(Tint, .5), 1);
        }
    }
}

static void DrawRope(QPainter& G, const Shield& Own)
{
    Stroke(G, Own.Rim, "#6a4a1a", 12);
    Stroke(G, Own.Rim, "#e0bd72", 9);
    constexpr int Strands = 36;
    for (int I = 0; I < Strands; ++I) {
        const double T = static_cast<double>(I) / Strands;
        const QPointF At = Own.Rim.pointAtPercent(T);
        const double A = Radians(50 - Own.Rim.angleAtPercent(T));
        const QPointF Half(4.2 * std::cos(A), 4.2 * std::sin(A));
        StrokeLine(G, At.x() - Half.x(), At.y() - Half.y(), At.x() + Half.x(), At.y() + Half.y(),
                   "#8a6424", 1.8);
    }
}

// A star of rays, as orders are worn: every second ray is bright.
static void DrawStarBehind(QPainter& G, const Shield& Own)
{
    const QColor Tint = Colour(Own.R, "sc", "#d8dee6");
    const int Rays = Whole(Own.R, "sn", 8);
    const double Long = Number(Own.R, "sr", 60), Short = Long * Number(Own.R, "si", .74);
    for (int I = 0; I < 2 * Rays; ++I) {
        const double A = I * 180.0 / Rays - 90, Half = 90.0 / Rays;
        const auto At = [](double Degrees1, double Far) {
            const double T = Radians(Degrees1);
            return QPointF(50 + Far * std::cos(T), 50 + Far * std::sin(T));
        };
        const double Tip = I % 2 ? Short : Long;
        const QColor Tone = I % 2 ? Dark(Tint, .3) : Tint;
        Outline(
            G, Polygon({{50, 50}, At(A - Half, Short * .9), At(A, Tip), At(A + Half, Short * .9)}),
            Radial(50, 50, Long, {Light(Tone, .6), Tone, Dark(Tone, .15)}), Dark(Tint, .6), 1.3);
    }
}

static void DrawCrossBehind(QPainter& G, const Shield& Own)
{
    const QColor Tint = Colour(Own.R, "sc", "#b8141e");
    QPainterPath Cross;
    Cross.setFillRule(Qt::WindingFill);
    for (const double A : {0, 90, 180, 270})
        Cross = Cross.united(
            Moved(Polygon({{-7, 0}, {-24, -60}, {0, -52}, {24, -60}, {7, 0}}), 50, 50, A));
    Outline(G, Cross, "#6a4a10", "#6a4a10", 6.5);
    Outline(G, Cross, Linear(0, 0, 100, 100, {Light(Tint, .35), Tint, Dark(Tint, .2)}), "#f0d070",
            3.6);
}

static void DrawSunBehind(QPainter& G, const Shield&)
{
    for (int I = 0; I < 16; ++I)
        Outline(G,
                Moved(Polygon({{-8, -42}, {0, I % 2 ? -58.0 : -67.0}, {8, -42}}), 50, 50, I * 22.5),
                I % 2 ? "#ff9a2a" : "#f0c02a", "#7a5a10", 1.2);
}

static void DrawCrown(QPainter& G, const Shield&)
{
    Outline(G, Polygon({{24, 2}, {18, -24}, {34, -12}, {50, -30}, {66, -12}, {82, -24}, {76, 2}}),
            Linear(0, -30, 0, 2, {"#fff0a8", "#e8b82a"}), "#6a4a0a", 1.4);
    Outline(G, Rounded(23, 0, 54, 8, 2), "#d8281c", "#5a0a0a", 1);
    for (const QPointF& Ball : Points{{18, -25}, {34, -13}, {50, -31}, {66, -13}, {82, -25}})
        Outline(G, Circle(Ball.x(), Ball.y(), 3), "#fff6d0", "#6a4a0a", .8);
}

static void DrawNavalCrown(QPainter& G, const Shield&)
{
    Outline(G, Rounded(22, -4, 56, 9, 2), "#e8b82a", "#6a4a0a", 1.2);
    for (const double X : {30, 50, 70})
        Outline(G, Polygon({{X - 7, -4}, {X, -24}, {X + 7, -4}}), "#fffdf0", "#6a4a0a", 1);
    for (const double X : {40, 60})
        Outline(G, Rounded(X - 3, -16, 6, 12, 1), "#c8962a", "#6a4a0a", .8);
}

static void DrawAstralCrown(QPainter& G, const Shield&)
{
    Outline(G, Rounded(24, -2, 52, 8, 2), "#e8b82a", "#6a4a0a", 1.2);
    for (const double X : {32, 50, 68}) {
        Outline(G, Polygon({{X - 5, -2}, {X, -16}, {X + 5, -2}}), "#f0d060", "#6a4a0a", .9);
        Outline(G, Star(X, -17, 7), "#ffffff", "#6a4a0a", .8);
    }
}

static void DrawHelm(QPainter& G, const Shield& Own)
{
    Outline(G, ClosedCurve({{32, 2}, {30, -22}, {40, -38}, {60, -38}, {70, -22}, {68, 2}}, .7),
            Linear(30, 0, 70, 0, {"#ffffff", "#9aa6b4", "#5a6674"}), "#2a323c", 1.4);
    Outline(G, Rounded(34, -22, 32, 5, 2), "#1a1e24", "#000000", .8);
    for (const double X : {42, 46, 50, 54, 58}) StrokeLine(G, X, -12, X, 0, "#000000", .8);
    Outline(G, ClosedCurve({{50, -38}, {44, -56}, {26, -54}, {34, -46}, {44, -38}}),
            Colour(Own.R, "plume", "#d8281c"), "#4a0a0a", 1.2);
}

static void DrawRibbon(QPainter& G, const Shield& Own)
{
    const QColor Tint = Colour(Own.R, "rc", "#e8d9a0");
    constexpr double Y = 88;
    const QPainterPath Tail =
        Polygon({{4, Y + 2}, {-4, Y + 8}, {2, Y + 11}, {-4, Y + 18}, {10, Y + 14}, {14, Y + 4}});
    Outline(G, Tail, Dark(Tint, .3), Dark(Tint, .6), 1);
    Outline(G, Mirrored(Tail), Dark(Tint, .3), Dark(Tint, .6), 1);
    Outline(G,
            ClosedCurve({{4, Y + 2},
                         {28, Y - 4},
                         {50, Y - 6},
                         {72, Y - 4},
                         {96, Y + 2},
                         {96, Y + 13},
                         {72, Y + 7},
                         {50, Y + 5},
                         {28, Y + 7},
                         {4, Y + 13}},
                        .6),
            Linear(0, Y - 6, 0, Y + 12, {Light(Tint, .3), Tint, Dark(Tint, .15)}), Dark(Tint, .6),
            1.2);
}

struct ExtraRow {
    const char* Name;
    void (*Draw)(QPainter& G, const Shield& Own);
};

constexpr ExtraRow Behind[] = {
    {"swords", DrawSwords}, {"wings", DrawWings},         {"laurel", DrawLaurel},
    {"rope", DrawRope},     {"starback", DrawStarBehind}, {"crossback", DrawCrossBehind},
    {"sun", DrawSunBehind},
};

constexpr ExtraRow Above[] = {
    {"crown", DrawCrown}, {"naval", DrawNavalCrown}, {"astral", DrawAstralCrown},
    {"helm", DrawHelm},   {"ribbon", DrawRibbon},
};

// ---------------------------------------------------------------- the whole

static void DrawShieldItself(QPainter& G, const Shield& Own)
{
    G.save();
    G.setClipPath(Own.Rim);
    DrawField(G, Own);
    if (Has(Own.R, "fab")) DrawFabric(G, Own);
    if (Has(Own.R, "border"))
        Stroke(G, Own.Rim, Tincture(Own.R, "border", "or"), Number(Own.R, "bwid", 13));
    FillBox(G, -10, -10, 120, 120,
            Linear(0, 0, 100, 100,
                   {Alpha("#ffffff", .3), Alpha("#ffffff", 0), Alpha("#000000", 0),
                    Alpha("#000000", .28)}));
    G.restore();
    const QColor Metal = Colour(Own.R, "rim", "#d9b23a");
    Stroke(G, Own.Rim, Dark(Metal, .55), 6.4);
    Stroke(G, Own.Rim, Metal, 4);
    Stroke(G, Own.Rim, Alpha(Light(Metal, .6), .9), 1.2);
    if (Has(Own.R, "boss")) {
        const QColor Boss = Colour(Own.R, "boss");
        Outline(G, Circle(50, 50, 15), Radial(44, 43, 20, {"#ffffff", Boss, Dark(Boss, .35)}),
                Dark(Boss, .6), 1.5);
        Outline(G, Circle(50, 50, 7), Radial(47, 47, 9, {"#ffffff", Boss, Dark(Boss, .3)}),
                Dark(Boss, .6), 1);
    }
    DrawCharges(G, Own);
}

static void Draw(QPainter& G, const Shield& Own)
{
    for (const ExtraRow& Extra : Behind)
        if (Own.Extras.contains(Extra.Name)) Extra.Draw(G, Own);
    const double K = Number(Own.R, "k", 1); // smaller, so that more is seen of what is behind
    G.save();
    G.translate(50, 50);
    G.scale(K, K);
    G.translate(-50, -50);
    DrawShieldItself(G, Own);
    G.restore();
    for (const ExtraRow& Extra : Above)
        if (Own.Extras.contains(Extra.Name)) Extra.Draw(G, Own);
}

void DrawShield(QPainter& P, const Recipe& R)
{
    const QString First = Text(R, "a", "gules");
    const Shield Own{R,
                     RimNamed(Text(R, "sh", "heater"), R),
                     Tincture(R, "a", "gules"),
                     Tincture(R, "b", First),
                     Tincture(R, "c", First),
                     Words(R, "x", "+")};
    DrawFittedDraft(
        P, [&](QPainter& G) { Draw(G, Own); }, Number(R, "st", 1.12));
}
