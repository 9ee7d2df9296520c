// make-backdrops OUTDIR FIRST LAST: draws the backdrops FIRST to LAST of backdrops.txt into
// OUTDIR/DATA/BDnnnn, and the sample sheet BD9000 or BD9001 of each group that is complete.
#include "families.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <cstdio>
#include <stdexcept>

struct Family {
    const char* Name;
    Picture (*Draw)(const Recipe&);
};
constexpr Family FamilyTable[] = {
    {"felt", DrawFelt},
    {"granite", DrawGranite},
    {"sand", DrawSand},
    {"micro", DrawMicro},
    {"scratched", DrawScratched},
    {"rock", DrawRock},
    {"crumbs", DrawCrumbs},
    {"moon", DrawMoon},
    {"marble", DrawMarble},
    {"veins", DrawVeins},
    {"threads", DrawThreads},
    {"sky", DrawSky},
    {"gas", DrawGas},
    {"velvet", DrawVelvet},
    {"stars", DrawStars},
    {"leather", DrawLeather},
    {"paving", DrawPaving},
    {"crystal", DrawCrystal},
    {"ice", DrawIce},
    {"planks", DrawPlanks},
    {"streaks", DrawStreaks},
    {"reeds", DrawReeds},
    {"silk", DrawSilk},
    {"echo", DrawEcho},
    {"carved", DrawCarved},
    {"kaleidoscope", DrawKaleidoscope},
    {"woven", DrawWoven},
    {"floor", DrawFloor},
    {"chocolate", DrawChocolate},
    {"bricks", DrawBricks},
    {"scales", DrawScales},
    {"straw", DrawStraw},
    {"chips", DrawChips},
    {"grass", DrawGrass},
    {"beans", DrawBeans},
    {"candy", DrawCandy},
    {"cars", DrawCars},
    {"flowers", DrawFlowers},
    {"emboss", DrawEmboss},
    {"forest", DrawForest},
};

constexpr float UsualCalm = 0.085F, UsualVignette = 0.14F;
constexpr int GroupSize = 36, SheetColumns = 12, SheetRows = 3, SheetCell = 60;
constexpr qsizetype WantedBytes = 330'000; // 73 pictures of this size make 24 MB

static QImage Drawn(const Recipe& R)
{
    for (const Family& F : FamilyTable) {
        if (R.Family != F.Name) continue;
        Picture P = F.Draw(R);
        Calm(P, Number(R, "calm", UsualCalm));
        Vignette(P, Number(R, "vignette", UsualVignette));
        return ToImage(P);
    }
    throw std::runtime_error("there is no family " + R.Family);
}

static QByteArray Encoded(const QImage& Image, const char* Format, int Quality)
{
    QByteArray Bytes;
    QBuffer Buffer(&Bytes);
    Buffer.open(QIODevice::WriteOnly);
    if (!Image.save(&Buffer, Format, Quality))
        throw std::runtime_error(std::string("Qt cannot write ") + Format);
    return Bytes;
}

// Without loss where that is small enough, else as good as fits.
static QByteArray PictureFile(const QImage& Image)
{
    QByteArray Bytes = Encoded(Image, "png", 60);
    for (int Quality = 97; Bytes.size() > WantedBytes && Quality >= 88; Quality -= 3)
        Bytes = Encoded(Image, "jpg", Quality);
    return Bytes;
}

// A square piece from the middle of the board's area, with a thin dark edge around it.
static void PaintSample(QPainter& Painter, const QImage& Image, const Recipe& R)
{
    const int Cell = (R.Number - 1) % GroupSize;
    const int Side = Count(R, "sample", 300);
    const QRect Piece(static_cast<int>(CentreX) - Side / 2, static_cast<int>(CentreY) - Side / 2,
                      Side, Side);
    constexpr int Inner = SheetCell - 4;
    const QImage Small =
        Image.copy(Piece).scaled(Inner, Inner, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const int Left = Cell % SheetColumns * SheetCell, Top = Cell / SheetColumns * SheetCell;
    Painter.fillRect(Left + 1, Top + 1, SheetCell - 2, SheetCell - 2, QColor(0x5b, 0x4a, 0x28));
    Painter.drawImage(Left + 2, Top + 2, Small);
}

static QImage EmptySheet()
{
    QImage Sheet(SheetColumns * SheetCell, SheetRows * SheetCell, QImage::Format_RGB32);
    Sheet.fill(QColor(0x12, 0x30, 0x1f));
    return Sheet;
}

static QString FileName(int Number)
{
    return QStringLiteral("BD%1").arg(Number, 4, 10, QLatin1Char('0'));
}

static void WriteFile(const QString& Path, const QByteArray& Bytes)
{
    QFile File(Path);
    if (!File.open(QIODevice::WriteOnly) || File.write(Bytes) != Bytes.size())
        throw std::runtime_error("cannot write " + Path.toStdString());
}

static void MakeBackdrops(const QString& OutDir, int First, int Last)
{
    const std::string Table = BACKDROP_TABLE;
    const std::vector<Recipe> Recipes = ReadRecipes(Table);
    if (First < 0 || Last < First || Last >= static_cast<int>(Recipes.size()))
        throw std::runtime_error(Table + " has no backdrops " + std::to_string(First) + " to " +
                                 std::to_string(Last));
    // Nothing is written before everything is drawn: a bad recipe leaves no half result.
    std::map<QString, QByteArray> Files;
    QImage Sheet = EmptySheet();
    QPainter SheetPainter(&Sheet);
    for (int I = First; I <= Last; ++I) {
        const Recipe& R = Recipes[I];
        try {
            const QImage Image = Drawn(R);
            if (I > 0) PaintSample(SheetPainter, Image, R);
            CheckAllKeysRead(R);
            Files[FileName(I)] = PictureFile(Image);
        } catch (const std::exception& Error) {
            throw std::runtime_error(Table + ":" + std::to_string(R.Line) + ": " + Error.what());
        }
        std::printf("backdrop %2d %s\n", I, R.Name.c_str());
        std::fflush(stdout);
        if (I % GroupSize == 0 && I > 0 && First <= I - GroupSize + 1) {
            Files[FileName(9000 + I / GroupSize - 1)] = Encoded(Sheet, "png", 0);
            SheetPainter.end();
            Sheet = EmptySheet();
            SheetPainter.begin(&Sheet);
        }
    }
    SheetPainter.end();
    if (!QDir().mkpath(OutDir + "/DATA"))
        throw std::runtime_error("cannot make " + OutDir.toStdString() + "/DATA");
    for (const auto& [Name, Bytes] : Files) WriteFile(OutDir + "/DATA/" + Name, Bytes);
}

int main(int ArgCount, char** Args)
{
    const QGuiApplication App(ArgCount, Args);
    const QStringList Words = App.arguments();
    bool GoodFirst = false, GoodLast = false;
    const int First = Words.value(2).toInt(&GoodFirst), Last = Words.value(3).toInt(&GoodLast);
    if (Words.size() != 4 || !GoodFirst || !GoodLast) {
        std::fprintf(stderr, "usage: make-backdrops OUTDIR FIRST LAST\n");
        return 2;
    }
    try {
        MakeBackdrops(Words[1], First, Last);
    } catch (const std::exception& Error) {
        std::fprintf(stderr, "make-backdrops: %s\n", Error.what());
        return 1;
    }
}
