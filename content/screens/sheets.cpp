// sheets.cpp: packs the pictures of the elements into sheets
//
// DATA/FM0000 is text, one line a picture: NAME SHEET X Y WIDTH HEIGHT, where SHEET is the number
// of the sheet DATA/FMnnnn and the rectangle is in its pixels, two for one of the design. A picture
// is drawn into the rectangle of its element, whatever its own size. Elements with the same picture
// share a rectangle.

#include "forms.h"

#include <QSaveFile>

#include <algorithm>
#include <map>

void AddForm(FormPictures& To, const QString& Element, Sheet On, const Drawing& Draw)
{
    const QSizeF Size = BoxOf(Element).size();
    QImage Image = NewPicture(Size.width(), Size.height());
    QPainter P;
    BeginDrawing(P, Image);
    Draw(P, QRectF(QPointF(), Size));
    P.end();
    To.push_back({Element, On, Image});
}

void AddStore(FormPictures& To, const QString& Store, Sheet On,
              const std::function<void(QPainter&, const QRectF&, int)>& Draw)
{
    const Place& Where = PlaceOf(Store);
    const double W = Where.Box.width() / Where.Columns, H = Where.Box.height() / Where.Rows;
    AddForm(To, Store, On, [&](QPainter& P, const QRectF&) {
        for (int I = 0; I < Where.Columns * Where.Rows; ++I)
            Draw(P, QRectF(I % Where.Columns * W, I / Where.Columns * H, W, H), I);
    });
}

// Sheet n at the design size itself, for a desktop of ordinary pixels: FM0100 + n.
constexpr int HalfSheet = 100;

struct Packed {
    QRect Box;
    const QImage* Image;
};

// Rows of pictures, the tallest first, with a clear pixel's width round each.
static std::vector<Packed> PackRows(std::vector<const QImage*> Images, QSize& Whole)
{
    constexpr int Width = 2052, Gap = 2;
    std::stable_sort(Images.begin(), Images.end(), [](const QImage* A, const QImage* B) {
        return A->height() != B->height() ? A->height() > B->height() : A->width() > B->width();
    });
    std::vector<Packed> Result;
    int X = 0, Y = 0, RowHeight = 0;
    for (const QImage* Image : Images) {
        if (X > 0 && X + Image->width() > Width) {
            X = 0;
            Y += RowHeight + Gap;
            RowHeight = 0;
        }
        Result.push_back({QRect(QPoint(X, Y), Image->size()), Image});
        RowHeight = std::max(RowHeight, Image->height() + Image->height() % 2);
        Whole = Whole.expandedTo(QSize(X + Image->width(), Y + RowHeight));
        X += Image->width() + Image->width() % 2 + Gap;
    }
    return Result;
}

// The first of the pictures that looks the same.
static const QImage* Twin(const FormPictures& Pictures, const FormPicture& Of)
{
    for (const FormPicture& F : Pictures)
        if (F.On == Of.On && F.Image == Of.Image) return &F.Image;
    return &Of.Image;
}

void WriteSheets(const FormPictures& Pictures, const QString& Folder)
{
    QByteArray Index;
    for (int On = MainSheet; On <= LastSheet; ++On) {
        std::vector<const QImage*> Images;
        for (const FormPicture& F : Pictures)
            if (F.On == On && Twin(Pictures, F) == &F.Image) Images.push_back(&F.Image);
        QSize Size(1, 1);
        std::map<const QImage*, QRect> Boxes;
        for (const Packed& One : PackRows(Images, Size)) Boxes[One.Image] = One.Box;
        QImage Whole = NewImage(Size.width() + Size.width() % 2, Size.height() + Size.height() % 2);
        QPainter P(&Whole);
        P.setCompositionMode(QPainter::CompositionMode_Source);
        for (const QImage* Image : Images) P.drawImage(Boxes[Image].topLeft(), *Image);
        P.end();
        SavePicture(Whole, Folder + QString("/DATA/FM%1").arg(On, 4, 10, QChar('0')));
        // Every place and size is even, so that half of it takes no colour from a neighbour.
        SavePicture(Whole.scaled(Whole.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation),
                    Folder + QString("/DATA/FM%1").arg(HalfSheet + On, 4, 10, QChar('0')));
        for (const FormPicture& F : Pictures) {
            if (F.On != On) continue;
            const QRect Box = Boxes[Twin(Pictures, F)];
            Index += QString("%1 %2 %3 %4 %5 %6\n")
                         .arg(F.Name)
                         .arg(On)
                         .arg(Box.x())
                         .arg(Box.y())
                         .arg(Box.width())
                         .arg(Box.height())
                         .toUtf8();
        }
    }
    QSaveFile File(Folder + "/DATA/FM0000");
    if (!File.open(QIODevice::WriteOnly) || File.write(Index) != Index.size() || !File.commit())
        FatalError("cannot write " + File.fileName());
}
