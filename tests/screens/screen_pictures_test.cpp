// screen_pictures_test.cpp: every element has its picture, every text its contrast and its room
#include "tests/common/game_dir.h"
#include "tests/screens/views.h"

#include <QFile>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QTextStream>

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

static const QString Data = PAGODAS_GAME_DIR "/DATA/";
constexpr int Sharpness = 2;
constexpr double EnoughContrast = 4.5;

struct IndexRow {
    int Sheet;
    QRect Box;
};

static const std::map<std::string, IndexRow>& Index()
{
    static std::map<std::string, IndexRow> Rows;
    if (!Rows.empty()) return Rows;
    QFile File(Data + "FM0000");
    if (!File.open(QIODevice::ReadOnly)) return Rows;
    for (const QString& Line : QString::fromUtf8(File.readAll()).split('\n', Qt::SkipEmptyParts)) {
        const QStringList Words = Line.split(' ');
        if (Words.size() != 6) continue;
        Rows[Words[0].toStdString()] = {
            Words[1].toInt(),
            QRect(Words[2].toInt(), Words[3].toInt(), Words[4].toInt(), Words[5].toInt())};
    }
    return Rows;
}

static const QImage& FileImage(const QString& Name)
{
    static std::map<QString, QImage> Images;
    const auto [At, New] = Images.try_emplace(Name);
    if (New) At->second = QImage(Data + Name).convertToFormat(QImage::Format_ARGB32);
    return At->second;
}

static QImage FormImage(const std::string& Name)
{
    const auto Row = Index().find(Name);
    if (Row == Index().end()) return {};
    return FileImage(QString("FM%1").arg(Row->second.Sheet, 4, 10, QChar('0')))
        .copy(Row->second.Box);
}

static bool FilledFromFiles(const Element& E)
{
    return E.Id == clpTileSet.Id || E.Id == clpTileSample.Id;
}

static bool NeedsForm(const Element& E)
{
    return E.Shows.Kind == PictureKind::Form ||
           (E.Kind == ElementKind::Store && !FilledFromFiles(E));
}

class ScreenPictures : public testing::Test
{
protected:
    void SetUp() override { InitElements(); }
};

TEST_F(ScreenPictures, EveryElementThatNeedsOneHasAPictureOfTwiceItsSize)
{
    for (const Element& E : Elements) {
        if (!NeedsForm(E)) continue;
        const std::string Name = ElementText(E);
        const auto Row = Index().find(Name);
        ASSERT_NE(Row, Index().end()) << Name << " has no picture";
        EXPECT_EQ(Row->second.Box.width(), std::lround(E.Width * Sharpness)) << Name;
        EXPECT_EQ(Row->second.Box.height(), std::lround(E.Height * Sharpness)) << Name;
    }
}

TEST_F(ScreenPictures, EveryRowOfTheIndexIsAnElementAndLiesOnItsSheet)
{
    std::set<std::string> Known;
    for (const Element& E : Elements) Known.insert(ElementText(E));
    for (const auto& [Name, Row] : Index()) {
        EXPECT_TRUE(Known.count(Name)) << Name;
        const QImage& Sheet = FileImage(QString("FM%1").arg(Row.Sheet, 4, 10, QChar('0')));
        EXPECT_TRUE(Sheet.rect().contains(Row.Box)) << Name << " leaves sheet " << Row.Sheet;
    }
}

static double Share(const QImage& Image, int Step, bool (*Test)(QRgb))
{
    int Count = 0, Hits = 0;
    for (int Y = 0; Y < Image.height(); Y += Step)
        for (int X = 0; X < Image.width(); X += Step, ++Count) Hits += Test(Image.pixel(X, Y));
    return Count ? double(Hits) / Count : 0;
}

TEST_F(ScreenPictures, NoPictureIsEmpty)
{
    for (const auto& [Name, Row] : Index())
        EXPECT_GT(Share(FormImage(Name), 1, [](QRgb C) { return qAlpha(C) > 128; }), .02) << Name;
}

TEST_F(ScreenPictures, CellsOfAStoreDiffer)
{
    for (const ElementId Id : {clpDigits.Id, clpBlueDigitsA.Id, clpNotes.Id, clpButGroupOff.Id}) {
        const Element& Store = Elements[Id];
        const QImage Whole = FormImage(Store.Name);
        const int W = Whole.width() / Store.Columns, H = Whole.height() / Store.Rows;
        std::vector<QImage> Cells;
        for (int I = 0; I < Store.Columns * Store.Rows; ++I) {
            Cells.push_back(Whole.copy(I % Store.Columns * W, I / Store.Columns * H, W, H));
            for (int K = 0; K < I; ++K)
                EXPECT_NE(Cells[std::size_t(K)], Cells[std::size_t(I)])
                    << Store.Name << " " << K << " and " << I;
        }
    }
}

static double MeanSaturation(const QImage& Image)
{
    double Sum = 0;
    int Count = 0;
    for (int Y = 0; Y < Image.height(); Y += 2)
        for (int X = 0; X < Image.width(); X += 2) {
            const QColor C = QColor::fromRgba(Image.pixel(X, Y));
            if (C.alpha() < 128) continue;
            Sum += C.hsvSaturationF() * C.valueF();
            ++Count;
        }
    return Count ? Sum / Count : 0;
}

// What a covering picture leaves open would show the button under it.
TEST_F(ScreenPictures, DisabledPicturesCoverTheirButtonsAndAreDuller)
{
    const std::map<std::string, std::string> Covered = {{"imgEndDIS", "imgbutEnd"}};
    int Pairs = 0;
    for (const Element& E : Elements) {
        const std::string Name = ElementText(E);
        if (!Name.ends_with("DIS")) continue;
        const auto Other = Covered.find(Name);
        const std::string Button =
            Other == Covered.end() ? Name.substr(0, Name.size() - 3) : Other->second;
        const QImage Off = FormImage(Name), On = FormImage(Button);
        ASSERT_EQ(Off.size(), On.size()) << Name;
        int Open = 0;
        for (int Y = 0; Y < On.height(); ++Y)
            for (int X = 0; X < On.width(); ++X)
                Open += qAlpha(On.pixel(X, Y)) > qAlpha(Off.pixel(X, Y)) + 60;
        EXPECT_EQ(Open, 0) << Name << " leaves pixels of " << Button << " open";
        EXPECT_LT(MeanSaturation(Off), MeanSaturation(On)) << Name;
        ++Pairs;
    }
    EXPECT_EQ(Pairs, 16);
}

TEST_F(ScreenPictures, GroundsAndHelpPagesFillTheScreen)
{
    for (const char* Prefix : {"EN", "HP"})
        for (int I = 1; I <= 5; ++I) {
            const QString Name = QString("%1%2").arg(Prefix).arg(I, 4, 10, QChar('0'));
            EXPECT_EQ(FileImage(Name).size(), QSize(1024, 768)) << Name.toStdString();
            EXPECT_EQ(FileImage(Name + "@2").size(), QSize(2048, 1536)) << Name.toStdString();
        }
}

// --- contrast of labels ---

static double Part(double Value)
{
    return Value <= .03928 ? Value / 12.92 : std::pow((Value + .055) / 1.055, 2.4);
}
static double Luminance(const QColor& C)
{
    return .2126 * Part(C.redF()) + .7152 * Part(C.greenF()) + .0722 * Part(C.blueF());
}
static double Contrast(const QColor& A, const QColor& B)
{
    const double La = Luminance(A), Lb = Luminance(B);
    return (std::max(La, Lb) + .05) / (std::min(La, Lb) + .05);
}

static QColor MeanColour(const QImage& Image, const QRectF& Where)
{
    const QRect Box = Where.toAlignedRect().intersected(Image.rect());
    double R = 0, G = 0, B = 0;
    for (int Y = Box.top(); Y <= Box.bottom(); ++Y)
        for (int X = Box.left(); X <= Box.right(); ++X) {
            const QRgb C = Image.pixel(X, Y);
            R += qRed(C);
            G += qGreen(C);
            B += qBlue(C);
        }
    const double Count = Box.width() * Box.height();
    return QColor(int(R / Count), int(G / Count), int(B / Count));
}

struct Ground {
    const Element* Panel;
    const char* File; // of DATA, or nullptr: the panel's own picture
};

static QColor ColourUnder(const Element& Label, const Ground& On)
{
    double X = Label.Left, Y = Label.Top;
    for (const Element* Up = &Elements[Label.Panel]; Up != On.Panel; Up = &Elements[Up->Panel]) {
        X += Up->Left;
        Y += Up->Top;
    }
    const double Scale = On.File ? 1 : Sharpness;
    const QImage Image = On.File ? FileImage(On.File) : FormImage(ElementText(*On.Panel));
    return MeanColour(Image,
                      QRectF(X * Scale, Y * Scale, Label.Width * Scale, Label.Height * Scale));
}

static bool StandsOn(const Element& E, const Element& Panel)
{
    for (const Element* Up = &E; Up->Panel != NoElement; Up = &Elements[Up->Panel])
        if (Up->Panel == Panel.Id) return true;
    return false;
}

static bool IsShadow(const Element& E) // the dark or light edge of the text before it
{
    const std::string Name = E.Name;
    if (Name.ends_with("Shadow") || Name.ends_with("_S")) return true;
    const bool Edge = E.Ink.Red < 16 || (E.Ink.Red == 255 && E.Ink.Green == 248);
    return E.Index == 1 && Edge && !Name.starts_with("lblScr") && !Name.starts_with("lblHis");
}

TEST_F(ScreenPictures, LabelsStandOutFromTheirGround)
{
    const Ground Grounds[] = {
        {&picOptions, "EN0001"}, {&picHistory, "EN0002"},     {&picScores, "EN0003"},
        {&picProfile, "EN0004"}, {&picLayouts, "EN0005"},     {&picHelp, "HP0004"},
        {&picMenu, nullptr},     {&picGamePanel(3), nullptr}, {&picBevelRight, nullptr},
    };
    int Labels = 0;
    std::set<ElementId> Seen;
    for (const Ground& On : Grounds)
        for (const Element& E : Elements) {
            if (E.Kind != ElementKind::Label || IsShadow(E) || !StandsOn(E, *On.Panel)) continue;
            if (StandsOn(E, picNote) || !Seen.insert(E.Id).second) continue;
            if (std::string(E.Name) == "lblLayoutName" && E.Index >= 12) continue; // shadows
            if (E.Font.Size == 0) continue;
            const QColor Text(E.Ink.Red, E.Ink.Green, E.Ink.Blue);
            EXPECT_GE(Contrast(Text, ColourUnder(E, On)), EnoughContrast)
                << ElementText(E) << " on " << ColourUnder(E, On).name().toStdString();
            ++Labels;
        }
    EXPECT_GT(Labels, 250);
}

TEST_F(ScreenPictures, ColoursThatRulesSetStandOutToo)
{
    const Ground Scores{&picScores, "EN0003"}, Profile{&picProfile, "EN0004"},
        Word{&picGamePanel(3), nullptr};
    // Black rows and a yellow one have no ground in common: the strip darkens the yellow one's.
    for (int I = 1; I <= 10; ++I) {
        const QColor Ground = ColourUnder(lblScrName(I), Scores);
        EXPECT_GE(Contrast(QColor(0, 0, 0), Ground), EnoughContrast) << I;
        const int Rest = 255 - picNewRow.Shade;
        const QColor Strip(Ground.red() * Rest / 255, Ground.green() * Rest / 255,
                           Ground.blue() * Rest / 255);
        EXPECT_GE(Contrast(QColor(255, 255, 0), Strip), EnoughContrast) << I;
    }
    for (int I = 1; I <= 10; ++I)
        EXPECT_GE(Contrast(QColor(255, 255, 0), ColourUnder(lblProScore(I), Profile)),
                  EnoughContrast);
    EXPECT_GE(Contrast(QColor(255, 0, 0), ColourUnder(lblWord, Word)), EnoughContrast);
}

TEST_F(ScreenPictures, NumbersStandOutFromTheirNotes)
{
    const QImage Notes = FormImage("clpNotes");
    const Colour Bonus = lblBonus(0).Ink;
    for (const int Note : {6, 7, 8, 11}) {
        const QRectF Where(8 * Sharpness, (80 * Note + 44) * Sharpness, 160 * Sharpness,
                           26 * Sharpness);
        const QColor Paper = MeanColour(Notes, Where);
        EXPECT_GE(Contrast(QColor(Bonus.Red, Bonus.Green, Bonus.Blue), Paper), EnoughContrast);
        // Nothing is drawn where the number goes.
        double Darkest = 1;
        const QRect Room = Where.toAlignedRect();
        for (int Y = Room.top(); Y < Room.bottom(); ++Y)
            for (int X = Room.left(); X < Room.right(); ++X)
                Darkest = std::min(Darkest, Luminance(QColor(Notes.pixel(X, Y))));
        EXPECT_GT(Darkest, .4) << "note " << Note;
    }
}

// --- room for texts ---

static double TextWidth(const Element& E, const QString& Text, int Size)
{
    QFont Font(E.Font.Face == FontFace::Serif ? "DejaVu Serif" : "DejaVu Sans");
    Font.setPixelSize(Size);
    Font.setBold(E.Font.Bold);
    return QFontMetricsF(Font).horizontalAdvance(Text);
}

TEST_F(ScreenPictures, NoLabelIsUnderTwelvePixels)
{
    for (const Element& E : Elements)
        if (E.Kind == ElementKind::Label) {
            EXPECT_GE(E.Font.Size, 12) << ElementText(E);
        }
}

TEST_F(ScreenPictures, CaptionsFitTheirLabels)
{
    int Captions = 0;
    for (const Element& E : Elements) {
        if (E.Kind != ElementKind::Label || E.Caption.empty()) continue;
        EXPECT_LE(TextWidth(E, QString::fromStdString(E.Caption), E.Font.Size), E.Width)
            << ElementText(E) << " \"" << E.Caption << '"';
        ++Captions;
    }
    EXPECT_GT(Captions, 40);
}

// The longest texts that the rules allow, at 12 px or more.
TEST_F(ScreenPictures, LongestTextsStillRead)
{
    const QString Name(12, 'W');
    const std::pair<const Element*, QString> Texts[] = {
        {&lblScrName(1), Name},
        {&lblHisName(0), Name},
        {&lblScrScore(1), "32767"},
        {&lblHisScore(0), "32767"},
        {&lblScore(0), "32767"},
        {&lblProScore(1), "99999"},
        {&lblStatA(10), Name.toLower()},
        {&lblStatB(10), Name.toLower()},
        {&lblTotalPlayed(0), "32767"},
        {&lblTotalWon(0), "100%"},
        {&lblWord, QString(12, 'W')},
        {&lblGraphScore(0), "32767  " + Name.toLower()},
        {&lblBonus(0), "22+"},
        {&lblTileSet, "Buildings Historical"},
        {&lblBackDrop, "Floral Textile (25)"},
        {&lblOptionsNote, "You must end your current game before changing game types"},
        {&lblNote(0), "Your desktop display setting must be higher then 1024x768 to switch to "
                      "Window Mode"},
    };
    for (const auto& [E, Text] : Texts)
        EXPECT_LE(TextWidth(*E, Text, 12), E->Width) << ElementText(*E);
}

TEST_F(ScreenPictures, LayoutNamesFitWhereverTheyStand)
{
    QFile File(Data + "LY0000");
    ASSERT_TRUE(File.open(QIODevice::ReadOnly));
    int Names = 0;
    for (const QString& Line : QString::fromUtf8(File.readAll()).split('\n', Qt::SkipEmptyParts)) {
        const QString Name = Line.mid(4).trimmed(); // after the offsets
        for (const Element* E : {&lblLayoutMain(0), &lblLayoutName(0), &lblHisLayout(0),
                                 &lblScrTitle, &lblGraphLayout(0), &lblStatA(9), &lblStatB(9)})
            EXPECT_LE(TextWidth(*E, Name, 12), E->Width) << Name.toStdString();
        ++Names;
    }
    EXPECT_EQ(Names, 360);
}

TEST_F(ScreenPictures, LabelsOfAPanelDoNotOverlap)
{
    for (const Element& A : Elements)
        for (const Element& B : Elements) {
            if (B.Id <= A.Id || A.Panel != B.Panel || A.Panel == NoElement) continue;
            if (A.Kind != ElementKind::Label || B.Kind != ElementKind::Label) continue;
            if (IsShadow(A) || IsShadow(B)) continue;
            if (A.Left == B.Left && A.Top == B.Top) continue; // one text, written twice
            if (std::string(A.Name) == B.Name && std::string(A.Name) == "lblLayoutName") continue;
            const QRectF BoxA(A.Left, A.Top, A.Width, A.Height),
                BoxB(B.Left, B.Top, B.Width, B.Height);
            EXPECT_FALSE(BoxA.intersects(BoxB)) << ElementText(A) << " and " << ElementText(B);
        }
}

// --- every view, as it is painted ---

// A label that another element covers is not read: the board's under a box, a shadow's.
static bool IsRead(const Element& E)
{
    if (E.Kind != ElementKind::Label || E.Caption.empty() || !IsShown(E)) return false;
    const Point Place = ScreenPlace(E);
    const Element* Hit = HitTest(Place.X + E.Width / 2, Place.Y + E.Height / 2);
    return Hit == &E;
}

// Where the two pictures differ inside a place, as the smallest rectangle.
static QRect Difference(const QImage& A, const QImage& B, const QRect& Where)
{
    QRect Found;
    for (int Y = Where.top(); Y <= Where.bottom(); ++Y)
        for (int X = Where.left(); X <= Where.right(); ++X)
            if (A.pixel(X, Y) != B.pixel(X, Y)) Found |= QRect(X, Y, 1, 1);
    return Found;
}

TEST(Views, EveryCaptionStandsOutFromWhatIsPaintedBeneathIt)
{
    int Measured = 0;
    for (const View& One : AllViews()) {
        Enter(One);
        std::vector<const Element*> Read;
        for (const Element& E : Elements)
            if (IsRead(E)) Read.push_back(&E);
        const QImage With = PaintedScreen(1);
        for (const Element& E : Elements)
            if (E.Kind == ElementKind::Label) SetCaption(E, "");
        const QImage Without = PaintedScreen(1);
        for (const Element* E : Read) {
            const Point Place = ScreenPlace(*E);
            const QRect Text =
                Difference(With, Without, QRectF(Place.X, Place.Y, E->Width, E->Height).toRect());
            if (Text.isEmpty()) continue; // a score's blank
            const QColor Ground = MeanColour(Without, Text);
            EXPECT_GE(Contrast(QColor(E->Ink.Red, E->Ink.Green, E->Ink.Blue), Ground),
                      EnoughContrast)
                << One.Name << ": " << ElementText(*E) << " on " << Ground.name().toStdString();
            ++Measured;
        }
    }
    EXPECT_GT(Measured, 900);
}

TEST(Views, NoCaptionLeavesItsPlace)
{
    for (const View& One : AllViews()) {
        Enter(One);
        for (const Element& E : Elements)
            if (IsRead(E)) {
                EXPECT_LE(TextWidth(E, QString::fromStdString(E.Caption), 12), E.Width)
                    << One.Name << ": " << ElementText(E) << " \"" << E.Caption << '"';
            }
    }
}

static QImage ScoresWithNewName(const std::string& Name)
{
    BootGame();
    PressAt(imgbutStart);
    GameState.Score = 500;
    EndWonGame();
    SendText(txtName, Name);
    SendKeyPress(txtName, 13);
    return PaintedScreen(1);
}

TEST(Views, ATypedNameOfAnyLengthStaysInItsPlace)
{
    const QImage Short = ScoresWithNewName("w");
    const QImage Long = ScoresWithNewName(std::string(60, 'w'));
    ASSERT_TRUE(picScores.Visible);
    const Point Place = ScreenPlace(lblScrName(1));
    const QRectF Room(Place.X, Place.Y, lblScrName(1).Width, lblScrName(1).Height);
    const QRect Painted = Difference(Short, Long, Long.rect());
    EXPECT_GT(Painted.width(), Room.width() / 2);
    EXPECT_TRUE(Room.contains(Painted)) << Painted.right() << " is right of " << Room.right();
}

// The note under the graph stands between the marks of two sizes, with some room to them.
TEST(Views, NothingIsPaintedBeneathTheNoteUnderTheGraph)
{
    BootGame();
    PressAt(imgButMenu);
    PressAt(imgMenuProfile);
    const Point Place = ScreenPlace(lblProNote);
    const QImage Screen = PaintedScreen(1);
    double Darkest = 1, Lightest = 0;
    for (float Y = 0; Y < lblProNote.Height; ++Y)
        for (float X = 0; X < lblProNote.Width; ++X) {
            const double Light =
                Luminance(QColor(Screen.pixel(QPointF(Place.X + X, Place.Y + Y).toPoint())));
            Darkest = std::min(Darkest, Light);
            Lightest = std::max(Lightest, Light);
        }
    EXPECT_LT(Lightest - Darkest, .05);
    EXPECT_LT(TextWidth(lblProNote, "Click to play Layout", 14) + 40, lblProNote.Width);
}

// Two states of the program must not look the same.
TEST(Views, EveryViewLooksDifferent)
{
    std::vector<std::pair<const char*, QImage>> Seen;
    for (const View& One : AllViews()) {
        Enter(One);
        const QImage Screen = PaintedScreen(1);
        for (const auto& [Name, Other] : Seen)
            EXPECT_FALSE(Screen == Other) << One.Name << " looks like " << Name;
        Seen.emplace_back(One.Name, Screen);
    }
}

// A press moves a button by one pixel only, so it must lose light too.
TEST(Views, APressedButtonIsDarkerThanAtRest)
{
    for (const Element* Button : {&imgMixFinesse, &imgButMenu, &imgbutEnd}) {
        BootGame();
        PressAt(imgbutStart);
        const Point Place = ScreenPlace(*Button);
        const QRectF Face(Place.X + 10, Place.Y + 6, Button->Width - 18, Button->Height - 16);
        const double Rest = Luminance(MeanColour(PaintedScreen(1), Face));
        SendMouseDown(MouseButton::Left, Place.X + 20, Place.Y + 20);
        const double Pressed = Luminance(MeanColour(PaintedScreen(1), Face.translated(1, 1)));
        EXPECT_LT(Pressed, .8 * Rest) << ElementText(*Button);
        SendMouseUp(MouseButton::Left, Place.X + 20, Place.Y + 20);
        EXPECT_EQ(PressedButton(), nullptr);
    }
}

// On a fine display the grounds come from their pictures of twice the size.
TEST(Views, FullScreensAreSharpAtTwiceTheSize)
{
    for (const char* Name : {"options", "history", "scores", "profile", "chooser", "help-1"}) {
        for (const View& One : AllViews())
            if (std::string(One.Name) == Name) Enter(One);
        const QImage Fine = PaintedScreen(2);
        const QImage Coarse =
            PaintedScreen(1).scaled(Fine.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        double Finer = 0, Coarser = 0; // light and dark beside each other in the title
        for (int Y = 40; Y < 120; ++Y)
            for (int X = 80; X < 700; ++X) {
                Finer += std::abs(qGreen(Fine.pixel(X, Y)) - qGreen(Fine.pixel(X + 1, Y)));
                Coarser += std::abs(qGreen(Coarse.pixel(X, Y)) - qGreen(Coarse.pixel(X + 1, Y)));
            }
        EXPECT_GT(Finer, 1.15 * Coarser) << Name;
    }
}

int main(int Count, char** Arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication App(Count, Arguments);
    LoadScreenFonts();
    testing::InitGoogleTest(&Count, Arguments);
    return RUN_ALL_TESTS();
}
