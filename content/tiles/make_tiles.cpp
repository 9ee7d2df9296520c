// make_tiles: draws the tile sets, the letter tiles and the sample sheets.
//
//   make-tiles OUTDIR sets FIRST LAST    DATA/TSnnnn, 720 by 540: 12 by 9 cells of 60;
//                                        set 0 is the letters
//   make-tiles OUTDIR samples            DATA/TS9000 to TS9002, 720 by 120: a tile of each set
//   make-tiles OUTDIR sheet FIRST LAST   OUTDIR/sheet.png, to look at

#include "letters.h"

#include <QGuiApplication>

#include <cstdio>

constexpr int Finer = 4; // tiles are drawn larger, then scaled down once
constexpr int Columns = 12;
constexpr int GroupSize = 24; // sets on one sample sheet

static QImage DrawBody(TileState State, const BodyTint& Tint)
{
    QImage Body = NewImage(TileSize * Finer, TileSize * Finer);
    QPainter P(&Body);
    P.scale(Finer, Finer);
    DrawTileBody(P, State, Tint);
    return Body;
}

static QImage DrawFaceLayer(const Draft& DrawIt)
{
    QImage Layer = NewImage(TileSize * Finer, TileSize * Finer);
    QPainter P(&Layer);
    P.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    P.scale(Finer, Finer);
    P.translate(TileArt.topLeft());
    P.scale(TileArt.width() / 100, TileArt.height() / 100);
    DrawIt(P);
    return Layer;
}

static QImage Compose(const QImage& Body, const QImage& Layer)
{
    QImage Tile = Body;
    QPainter P(&Tile);
    P.drawImage(0, 0, Layer);
    P.end();
    return Scaled(Tile, TileSize, TileSize);
}

static void PutCell(QImage& Sheet, int Cell, const QImage& Tile)
{
    QPainter P(&Sheet);
    P.drawImage(Cell % Columns * TileSize, Cell / Columns * TileSize, Tile);
}

static Draft LetterFace(int Number)
{
    return [Number](QPainter& P) { DrawLetterTile(P, Number); };
}

static QImage DrawSheet(int SetNumber)
{
    const TileSet Set = SetNumber ? ReadTileSet(SetNumber) : TileSet();
    QImage Sheet = NewImage(Columns * TileSize, 9 * TileSize);
    std::vector<QImage> Layers;
    for (int I = 0; I < FaceCount; ++I)
        Layers.push_back(DrawFaceLayer(SetNumber ? Draft([&](QPainter& P) {
            DrawFace(P, Set.Faces[static_cast<std::size_t>(I)]);
        })
                                                 : LetterFace(I + 1)));
    for (const TileState State : {TileNormal, TileLit, TileMarked}) {
        const QImage Body = DrawBody(State, *Set.Body);
        for (int I = 0; I < FaceCount; ++I)
            PutCell(Sheet, I + FaceCount * State,
                    Compose(Body, Layers[static_cast<std::size_t>(I)]));
    }
    return Sheet;
}

static QString DataFile(const QString& OutDir, int Number)
{
    return QString("%1/DATA/TS%2").arg(OutDir).arg(Number, 4, 10, QChar('0'));
}

static void MakeSets(const QString& OutDir, int First, int Last)
{
    for (int Number = First; Number <= Last; ++Number) {
        SavePicture(DrawSheet(Number), DataFile(OutDir, Number));
        std::printf("tile set %d of %d\n", Number, SetCount);
        std::fflush(stdout);
    }
}

static void MakeSamples(const QString& OutDir)
{
    for (int Group = 0; Group < SetCount / GroupSize; ++Group) {
        QImage Sheet = NewImage(Columns * TileSize, GroupSize / Columns * TileSize);
        for (int I = 0; I < GroupSize; ++I) {
            const TileSet Set = ReadTileSet(Group * GroupSize + I + 1);
            const Face& F = Set.Faces[static_cast<std::size_t>(Set.Sample - 1)];
            const QImage Layer = DrawFaceLayer([&](QPainter& P) { DrawFace(P, F); });
            PutCell(Sheet, I, Compose(DrawBody(TileNormal, *Set.Body), Layer));
        }
        SavePicture(Sheet, DataFile(OutDir, 9000 + Group));
    }
}

// For the eye: each set's 36 faces in 12 columns, twice as large, on the panel's green.
static void MakeLookSheet(const QString& OutDir, int First, int Last)
{
    constexpr int Zoom = 2, Rows = FaceCount / Columns;
    QImage Sheet = NewImage(Columns * TileSize * Zoom, (Last - First + 1) * Rows * TileSize * Zoom);
    Sheet.fill(QColor(PanelLight));
    QPainter P(&Sheet);
    for (int Number = First; Number <= Last; ++Number) {
        const QImage Cells = DrawSheet(Number).copy(0, 0, Columns * TileSize, Rows * TileSize);
        P.drawImage(
            0, (Number - First) * Rows * TileSize * Zoom,
            Cells.scaled(Cells.size() * Zoom, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }
    P.end();
    SavePicture(Sheet, OutDir + "/sheet.png");
}

int main(int Count, char** Values)
{
    const QGuiApplication App(Count, Values);
    const QStringList Args = QCoreApplication::arguments();
    const QString What = Args.value(2);
    const int First = Args.value(3).toInt(), Last = Args.value(4).toInt();
    if (Args.size() < 3 || First < 0 || Last > SetCount) FatalError("make-tiles: bad arguments");
    if (What == "sets") MakeSets(Args[1], First, Last);
    if (What == "samples") MakeSamples(Args[1]);
    if (What == "sheet") MakeLookSheet(Args[1], First, Last);
}
