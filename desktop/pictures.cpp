#include "desktop/desktop.h"
#include "frame/files.h"

#include <QImageReader>
#include <QPainter>

#include <fstream>
#include <map>
#include <sstream>

// Where a picture of the program's own design stands on the sheets.
struct FormRow {
    int Sheet;
    QRect Part;
};

static std::map<std::string, FormRow> FormIndex;
static std::map<std::string, QImage> Forms;     // at the view's scale, by name
static std::map<std::string, QImage> Files;     // backdrops, screens: at the view's scale
static std::map<ElementId, std::string> Stores; // what each store's pixels were made from
static std::map<ElementId, QImage> StorePixels;
static double KnownScale = 0;

static QImage ReadPicture(const std::string& File)
{
    QImageReader Reader(QString::fromStdString(HostPath(File)));
    Reader.setDecideFormatFromContent(true);
    QImage Image = Reader.read();
    if (Image.isNull()) FatalError(File + ": " + Reader.errorString().toStdString());
    return Image.convertToFormat(Image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

static QImage Scaled(const QImage& Image, int Width, int Height)
{
    if (Image.width() == Width && Image.height() == Height) return Image;
    return Image.scaled(Width, Height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// --- pictures of the program's own design ---

static void ReadFormIndex()
{
    const std::string File = DataFile("FM", 0);
    std::ifstream Index(HostPath(File));
    for (std::string Line; std::getline(Index, Line);) {
        std::istringstream Words(Line);
        std::string Name;
        int Sheet, X, Y, Width, Height;
        if (Words >> Name >> Sheet >> X >> Y >> Width >> Height)
            FormIndex[Name] = {Sheet, QRect(X, Y, Width, Height)};
    }
    if (FormIndex.empty()) FatalError(File + " is missing or holds no pictures");
}

// The sheets are drawn at twice the design size; FM0100 + n holds sheet n at the design size.
constexpr int FormScale = 2, DesignSizeSheets = 100;

// Cuts all pictures of a sheet out at the view's scale, so that the large sheet can go again.
static void CutSheet(int Sheet)
{
    const bool DesignSize = KnownScale <= 1;
    const QImage Whole = ReadPicture(DataFile("FM", DesignSize ? DesignSizeSheets + Sheet : Sheet));
    for (const auto& [Name, Row] : FormIndex) {
        if (Row.Sheet != Sheet) continue;
        const QRect& Two = Row.Part;
        const QRect Part = DesignSize ? QRect(Two.topLeft() / 2, Two.size() / 2) : Two;
        const int Width = qRound(Two.width() * KnownScale / FormScale);
        const int Height = qRound(Two.height() * KnownScale / FormScale);
        Forms[Name] = Scaled(Whole.copy(Part), std::max(Width, 1), std::max(Height, 1));
    }
}

static const QImage* FindForm(const std::string& Name)
{
    if (FormIndex.empty()) ReadFormIndex();
    const auto Row = FormIndex.find(Name);
    if (Row == FormIndex.end()) return nullptr;
    if (!Forms.count(Name)) CutSheet(Row->second.Sheet);
    return &Forms[Name];
}

// --- picture stores ---

// Scales every cell by itself, so that no cell takes colour from its neighbour.
static QImage ScaleCells(const QImage& Sheet, int Columns, int Rows, int Width, int Height)
{
    const int FromWidth = Sheet.width() / Columns, FromHeight = Sheet.height() / Rows;
    if (FromWidth == Width && FromHeight == Height) return Sheet;
    QImage Result(Columns * Width, Rows * Height, QImage::Format_ARGB32_Premultiplied);
    Result.fill(Qt::transparent);
    QPainter Painter(&Result);
    for (int Row = 0; Row < Rows; ++Row)
        for (int Column = 0; Column < Columns; ++Column) {
            const QImage Cell =
                Sheet.copy(Column * FromWidth, Row * FromHeight, FromWidth, FromHeight);
            Painter.drawImage(Column * Width, Row * Height, Scaled(Cell, Width, Height));
        }
    return Result;
}

static Pixels FindCell(const Element& Store, int Cell, double Scale)
{
    const int Width = qRound(Store.Width / static_cast<float>(Store.Columns) * Scale);
    const int Height = qRound(Store.Height / static_cast<float>(Store.Rows) * Scale);
    const std::string Source = PictureName(Store.Shows);
    if (Stores[Store.Id] != Source || StorePixels[Store.Id].isNull()) {
        if (Store.Shows.Kind == PictureKind::File) {
            StorePixels[Store.Id] =
                ScaleCells(ReadPicture(Source), Store.Columns, Store.Rows, Width, Height);
        } else if (const QImage* Form = FindForm(ElementText(Store))) {
            StorePixels[Store.Id] = ScaleCells(*Form, Store.Columns, Store.Rows, Width, Height);
        } else {
            return {};
        }
        Stores[Store.Id] = Source;
    }
    const int Column = Cell % Store.Columns, Row = Cell / Store.Columns;
    return {&StorePixels[Store.Id], QRect(Column * Width, Row * Height, Width, Height)};
}

// --- files ---

void ForgetUnusedFiles()
{
    std::erase_if(Files, [](const auto& Kept) {
        for (const Element& E : Elements)
            if (E.Shows.Kind == PictureKind::File && PictureFile(E.Shows) == Kept.first)
                return false;
        return true;
    });
}

// A display finer than the design takes the picture of twice the size, where its maker wrote one.
static QImage ReadScaled(const std::string& File, double Scale)
{
    const std::string Twice = File + "@2";
    if (Scale > 1 && FileExists(Twice)) {
        const QImage Image = ReadPicture(Twice);
        return Scaled(Image, qRound(Image.width() / 2 * Scale), qRound(Image.height() / 2 * Scale));
    }
    const QImage Image = ReadPicture(File);
    return Scaled(Image, qRound(Image.width() * Scale), qRound(Image.height() * Scale));
}

static Pixels FindFile(const Picture& P, double Scale)
{
    const std::string File = PictureFile(P);
    auto Found = Files.find(File);
    if (Found == Files.end()) {
        Found = Files.emplace(File, ReadScaled(File, Scale)).first;
    }
    return {&Found->second, Found->second.rect()};
}

void ForgetForm(const Element& E)
{
    Forms.erase(ElementText(E));
}

void ForgetPixels()
{
    Forms.clear();
    Files.clear();
    Stores.clear();
    StorePixels.clear();
}

Pixels FindPixels(const Picture& P, double Scale)
{
    if (Scale != KnownScale) {
        ForgetPixels();
        KnownScale = Scale;
    }
    switch (P.Kind) {
    case PictureKind::None:
        return {};
    case PictureKind::File:
        return FindFile(P, Scale);
    case PictureKind::Cell:
        return FindCell(Elements[P.Owner], P.Number, Scale);
    case PictureKind::Stock:
    case PictureKind::Form:
        break;
    }
    const QImage* Form = FindForm(ElementText(Elements[P.Owner]));
    return Form ? Pixels{Form, Form->rect()} : Pixels{};
}
