// preview.cpp: shows a screen as the game composes it, from the table of the screens and the made
// pictures, to judge how frames and labels meet.
//
//   preview-screens GAMEDIR FILE SCREEN [PIXEL-RATIO]

#include "frame/elements.h"

#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextStream>

#include <cstdio>
#include <cstdlib>
#include <map>

static QString GameFolder;

struct SheetPlace {
    int Sheet;
    QRect Box;
};
static std::map<QString, SheetPlace> FormPlaces;

static void Stop(const QString& Text)
{
    std::fprintf(stderr, "%s\n", qPrintable(Text));
    std::exit(1);
}

static const QImage& FileImage(const QString& File)
{
    static std::map<QString, QImage> Images;
    QImage& Image = Images[File];
    if (Image.isNull() && !Image.load(GameFolder + "/" + File))
        Image = QImage(1, 1, QImage::Format_RGB32);
    return Image;
}

static void ReadIndex()
{
    QFile File(GameFolder + "/DATA/FM0000");
    if (!File.open(QIODevice::ReadOnly)) Stop("cannot read " + File.fileName());
    QTextStream Text(&File);
    QString Name;
    int Sheet, X, Y, W, H;
    while (!(Text >> Name).atEnd()) {
        Text >> Sheet >> X >> Y >> W >> H;
        FormPlaces[Name] = {Sheet, QRect(X, Y, W, H)};
    }
}

static QImage Form(const QString& Name)
{
    const auto Found = FormPlaces.find(Name);
    if (Found == FormPlaces.end()) Stop("no picture for " + Name);
    return FileImage(QString("DATA/FM%1").arg(Found->second.Sheet, 4, 10, QChar('0')))
        .copy(Found->second.Box);
}

static QImage PictureImage(const Picture& Shown)
{
    if (Shown.Kind == PictureKind::File)
        return FileImage(QString::fromStdString(PictureFile(Shown)).replace('\\', '/').mid(1));
    const Element& Owner = Elements[Shown.Owner];
    const QString Name = QString::fromStdString(ElementText(Owner));
    if (Shown.Kind != PictureKind::Cell) return Form(Name);
    const bool Tiles = Name == "clpTileSet";
    const QImage Whole = Tiles ? FileImage("DATA/TS0001") : Form(Name);
    const int W = Whole.width() / Owner.Columns, H = Whole.height() / Owner.Rows;
    return Whole.copy(Shown.Number % Owner.Columns * W, Shown.Number / Owner.Columns * H, W, H);
}

static void DrawElement(QPainter& P, const Element& E, QPointF At);

static void DrawChildren(QPainter& P, const Element& E, QPointF At)
{
    for (ElementId Id = E.Rearmost; Id != NoElement; Id = Elements[Id].Before)
        DrawElement(P, Elements[Id], At);
}

static void DrawElement(QPainter& P, const Element& E, QPointF Parent)
{
    if (!E.Visible) return;
    const QRectF Box(Parent.x() + E.Left, Parent.y() + E.Top, E.Width, E.Height);
    if (E.Shows.Kind != PictureKind::None) {
        const QImage Image = PictureImage(E.Shows);
        const double Ratio = P.device()->devicePixelRatioF();
        P.drawImage(Box, Image.scaled((Box.size() * Ratio).toSize(), Qt::IgnoreAspectRatio,
                                      Qt::SmoothTransformation));
    }
    if (E.Shade) P.fillRect(Box, QColor(0, 0, 0, E.Shade));
    if (ElementText(E) == "picGraph") P.fillRect(Box, QColor(77, 77, 77));
    if (E.Kind == ElementKind::ListBox || E.Kind == ElementKind::TextBox)
        P.fillRect(Box, QColor("#fffdf3"));
    if (!E.Caption.empty()) {
        QFont Font(E.Font.Face == FontFace::Serif ? "DejaVu Serif" : "DejaVu Sans");
        Font.setPixelSize(E.Font.Size);
        Font.setBold(E.Font.Bold);
        P.setFont(Font);
        P.setPen(QColor(E.Ink.Red, E.Ink.Green, E.Ink.Blue));
        const int Place = E.Font.Place == Align::Left    ? Qt::AlignLeft
                          : E.Font.Place == Align::Right ? Qt::AlignRight
                                                         : Qt::AlignHCenter;
        P.drawText(Box, Place | Qt::AlignVCenter, QString::fromStdString(E.Caption));
    }
    DrawChildren(P, E, Box.topLeft());
}

static void StandTiles()
{
    int Tile = 0;
    for (int Layer = 0; Layer < 4; ++Layer)
        for (int Y = Layer; Y < 8 - Layer; ++Y)
            for (int X = Layer + 1; X < 13 - Layer && Tile < TileCount; ++X) {
                const Element& E = imgTile(++Tile);
                SetPicture(E, CellPicture(clpTileSet, (Tile * 7 + Y) % 36 + (Tile == 40   ? 36
                                                                             : Tile == 77 ? 72
                                                                                          : 0)));
                SetPlace(E, static_cast<float>(60 + X * 61 + Layer * 7),
                         static_cast<float>(70 + Y * 61 - Layer * 7));
                BringToFront(E);
                Show(E);
            }
}

static void Caption(const char* Name, int Index, const char* Text)
{
    const Element* E = FindElement(Name, Index);
    if (!E) Stop(QString("no element ") + Name);
    SetCaption(*E, Text);
    SetVisible(*E, true);
}

static void AllCaptions(const char* Name, int First, int Count, const char* Text)
{
    for (int I = First; I < First + Count; ++I) Caption(Name, I, Text);
}

static void FillMain(int Type, bool Running)
{
    SetVisible(frmMain, true);
    SetPicture(picBoard, FilePicture("BD", 1));
    StandTiles();
    SetVisible(imgWindowMode(1), true);
    SetVisible(picGamePanel(Type), true);
    SetCaption(lblScore, Running ? "12345" : "0");
    SetCaption(lblLayoutMain, "Bridges");
    SetCaption(lblCurrentTrack, "07");
    for (const ElementArray& A : {imgFinesseGreen, imgAgilityGreen, imgWisdomGreen})
        for (int I = A.First; I < A.First + A.Count; ++I)
            SetPicture(A(I), StockPicture(imgGreenLight(Running && I % 3 != 1)));
    for (int I = 0; I < 4; ++I)
        SetPicture(imgLED(I), CellPicture(clpDigits, Running ? "6285"[I] - '0' + 1 : 0));
    SetPicture(imgPeekTile, CellPicture(clpTileSet, 7));
    SetPicture(picNote, CellPicture(clpNotes, Running ? 6 : 4));
    if (Running) {
        SetPicture(imgBlueDigitA, CellPicture(clpBlueDigitsA, 1));
        SetPicture(imgBlueDigitB, CellPicture(clpBlueDigitsB, 4));
        SetPlace(imgBlueDigitB, 88, imgBlueDigitB.Top);
        Show(imgBlueDigitA);
        Show(imgBlueDigitB);
        Show(imgbutEnd);
    } else {
        for (const Element& E : Elements)
            if (std::string(E.Name).ends_with("DIS") && E.Name != std::string("imgEndDIS") &&
                E.Name != std::string("imgbutStartDIS"))
                SetVisible(E, true);
        SetVisible(imgButMenuDIS, false);
        SetVisible(imgButLayoutDIS, false);
    }
}

static void ShowScreen(const Element& E, int Number)
{
    Show(E);
    BringToFront(E);
    if (Number > 0) SetPicture(E, FilePicture("EN", Number));
}

static void Option(const ElementArray& A, int Chosen)
{
    for (int I = A.First; I < A.First + A.Count; ++I)
        SetPicture(A(I), StockPicture(imgOption(I == Chosen)));
}

static void FillOptions()
{
    ShowScreen(picOptions, 1);
    for (int I = 0; I < 3; ++I) SetPicture(imgGameType(I), StockPicture(imgOptGame(I == 1)));
    Show(imgGameDesc(1));
    Option(imgOptTileSet, 0);
    Option(imgOptBackground, 2);
    for (const Element* E :
         {&imgTileSetGroup0, &imgTileSetGroup1, &imgTileSetGroup2, &imgBackDropGroup0,
          &imgBackDropGroup1, &imgOptMusic, &imgOptSoundFX, &imgHelpBalloons})
        SetPicture(*E, StockPicture(imgOption(E == &imgTileSetGroup0 || E == &imgOptMusic)));
    SetPicture(lblOptionsTileSet, FilePicture("TS", 9000));
    SetPicture(imgTileSetSample, FilePicture("BD", 9000));
    Caption("lblTileSet", -1, "MediEval Fantasy");
    Caption("lblBackDrop", -1, "(Random)");
    Caption("Label1", -1, "A");
    Caption("lblOptionsNote", -1, "You must end your current game before changing game types");
    Show(imgSingleTile);
}

static void FillChooser(bool Random)
{
    ShowScreen(picLayouts, 5);
    SetPicture(imgButChooseLayout, StockPicture(imgChooseLayout(!Random)));
    SetPicture(imgButRandomLayout, StockPicture(imgRandomLayout(Random)));
    for (int I = 0; I < 10; ++I)
        SetPicture(imgButGroups(I), CellPicture(I == 1 ? clpButGroupOn : clpButGroupOff, I));
    Option(imgOptRandomLayout, 2);
    Caption("lblSet", -1, "A");
    if (Random) return;
    SetPicture(picThumbs, FilePicture("LY", 2));
    Show(picThumbs);
    BringToFront(picThumbs);
    AllCaptions("lblTotalPlayed", 0, 12, "137");
    AllCaptions("lblTotalWon", 0, 12, "64%");
    Show(imgThumbFrame);
}

static void FillScores()
{
    ShowScreen(picScores, 3);
    for (int I = 0; I < 10; ++I)
        SetPicture(imgButGrpScr(I), CellPicture(I == 1 ? clpButGroupOn : clpButGroupOff, I));
    for (int I = 0; I < 12; ++I) SetPicture(imgScrLayout(I), StockPicture(imgButScores(I == 3)));
    Option(imgGameTypeScores, 0);
    AllCaptions("lblLayoutName", 0, 24, "The Hidden Garden");
    Caption("lblScrTitle", -1, "The Hidden Garden");
    Caption("lblScoreSet", -1, "A");
    AllCaptions("lblScrRank", 1, 10, "10");
    AllCaptions("lblScrName", 1, 10, "WWWWWWWWWWWW");
    AllCaptions("lblScrScore", 1, 10, "12345");
    AllCaptions("lblScrDay", 1, 10, "28");
    AllCaptions("lblScrMonth", 1, 10, "May");
    AllCaptions("lblScrYear", 1, 10, "2026");
    SetInk(lblScrName(3), {255, 255, 0});
}

static void FillHistory()
{
    ShowScreen(picHistory, 2);
    Option(imgGameTypeHistory, 0);
    Option(imgHisView, 1);
    Option(imgHisPage, 0);
    AllCaptions("lblHisName", 0, 14, "wwwwwwwwwwww");
    AllCaptions("lblHisRank", 0, 14, "10");
    AllCaptions("lblHisLayout", 0, 14, "The Hidden Garden");
    AllCaptions("lblHisScore", 0, 14, "12345");
    AllCaptions("lblHisDay", 0, 14, "28");
    AllCaptions("lblHisMonth", 0, 14, "May");
    AllCaptions("lblHisYear", 0, 14, "2026");
}

static void FillProfile()
{
    ShowScreen(picProfile, 4);
    Option(imgGameTypeProfile, 0);
    Option(imgGraphType, 0);
    Option(imgOptLowScore, 1);
    Caption("lblSetProfile", -1, "A");
    for (int I = 1; I <= 12; ++I) Caption("cboPlayerList", I, "wwwwwwwwwwww");
    AllCaptions("lblProScore", 1, 10, "12345");
    AllCaptions("lblProScoreShadow", 1, 10, "12345");
    for (const char* Name : {"lblStatA", "lblStatAShadow", "lblStatB", "lblStatBShadow"})
        AllCaptions(Name, 1, 10, "The Hidden Garden");
    for (int I = 0; I < 2; ++I) {
        Caption("lblGraphScore", I, "12345  wwwwwwwwwwww");
        Caption("lblGraphLayout", I, "The Hidden Garden");
    }
    Caption("lblProNote", -1, "Click to play Layout");
}

static void FillBox(const Element& Box)
{
    Show(picBlack);
    BringToFront(picBlack);
    Show(Box);
    BringToFront(Box);
}

static void Fill(const QString& Screen)
{
    const int Type = Screen == "agility" ? 2 : Screen == "wisdom" ? 3 : 1;
    FillMain(Type, Screen != "idle");
    if (Screen == "agility") Show(imgPauseBar);
    if (Screen == "wisdom") {
        SetCaption(lblWord, "PAGODA");
        SetPicture(picNote, CellPicture(clpNotes, 11));
        Hide(imgBlueDigitA);
        Hide(imgBlueDigitB);
        Show(lblBonus);
        SetCaption(lblBonus, "15 ");
        Show(picPeek);
    }
    if (Screen == "note") {
        Show(imgNote);
        Show(lblNote);
        SetCaption(
            lblNote,
            "Your desktop display setting must be higher then 1024x768 to switch to Window Mode");
        Show(picPeek);
    }
    if (Screen == "menu") {
        FillBox(picMenu);
        Caption("lblxpack_Title", -1, "Content packs installed:");
        Caption("lblxpack_Installed", -1, "1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13");
        Caption("lblXpack_Notice", -1, "The guide to packs opens on release");
    }
    if (Screen == "exit") FillBox(picExit);
    if (Screen == "end") FillBox(picEnd);
    if (Screen == "nomoves") FillBox(picNoMoves);
    if (Screen == "nomovesmix") FillBox(picNoMovesMix);
    if (Screen == "won" || Screen == "high") {
        FillBox(picGameWon);
        SetPicture(imgGameWon, FilePicture("PH", 1));
        Show(Screen == "won" ? picCongrats : picNewHigh);
        SetCaption(txtName, "wwwwwwwwwwww");
    }
    if (Screen == "options") FillOptions();
    if (Screen == "chooser") FillChooser(false);
    if (Screen == "random") FillChooser(true);
    if (Screen == "scores") FillScores();
    if (Screen == "history") FillHistory();
    if (Screen == "profile") FillProfile();
    if (Screen.startsWith("help")) {
        ShowScreen(picHelp, 0);
        SetPicture(picHelp, FilePicture("HP", Screen.mid(4).toInt()));
        SetVisible(lblCreditMusic, Screen == "help4");
        SetVisible(lblCreditMaker, Screen == "help4");
    }
}

int main(int ArgumentCount, char** Arguments)
{
    QGuiApplication App(ArgumentCount, Arguments);
    const QStringList Given = App.arguments();
    if (Given.size() < 4) Stop("usage: preview-screens GAMEDIR FILE SCREEN [PIXEL-RATIO]");
    for (const char* Font : {"DejaVuSans", "DejaVuSans-Bold", "DejaVuSerif", "DejaVuSerif-Bold"})
        QFontDatabase::addApplicationFont(
            QString("/usr/share/fonts/truetype/dejavu/%1.ttf").arg(Font));
    GameFolder = Given[1];
    ReadIndex();
    InitElements();
    const bool Splash = Given[3] == "logo" || Given[3] == "title";
    const double Ratio = Given.size() > 4 ? Given[4].toDouble() : 1;
    QImage Picture((Splash ? QSizeF(640, 384) : QSizeF(1024, 768)).toSize() * Ratio,
                   QImage::Format_RGB32);
    Picture.setDevicePixelRatio(Ratio);
    Picture.fill(Qt::black);
    QPainter P(&Picture);
    P.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (Splash) {
        SetVisible(imgLogo, Given[3] == "logo");
        SetVisible(imgTitle, Given[3] == "title");
        DrawChildren(P, frmSplash, {0, 0});
    } else {
        Fill(Given[3]);
        DrawChildren(P, frmMain, {0, 0});
    }
    P.end();
    if (!Picture.save(Given[2], "PNG")) Stop("cannot write " + Given[2]);
}
