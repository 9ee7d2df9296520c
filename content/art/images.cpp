// images.cpp: images with alpha

#include "art.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

QImage NewImage(int Width, int Height)
{
    QImage Image(std::max(Width, 1), std::max(Height, 1), QImage::Format_ARGB32_Premultiplied);
    Image.fill(Qt::transparent);
    return Image;
}

QRect InkBox(const QImage& Image)
{
    constexpr int Faint = 12; // alpha below this is the soft rim of nothing
    const QImage Source = Image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int Left = Source.width(), Right = -1, Top = Source.height(), Bottom = -1;
    for (int Y = 0; Y < Source.height(); ++Y) {
        const QRgb* Row = reinterpret_cast<const QRgb*>(Source.constScanLine(Y));
        for (int X = 0; X < Source.width(); ++X) {
            if (qAlpha(Row[X]) <= Faint) continue;
            Left = std::min(Left, X);
            Right = std::max(Right, X);
            Top = std::min(Top, Y);
            Bottom = Y;
        }
    }
    return Right < 0 ? QRect() : QRect(QPoint(Left, Top), QPoint(Right, Bottom));
}

QImage CropToInk(const QImage& Image)
{
    const QRect Box = InkBox(Image);
    return Box.isEmpty() ? Image : Image.copy(Box);
}

QImage Tinted(const QImage& Image, const QColor& Colour)
{
    QImage Result = Image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter P(&Result);
    P.setCompositionMode(QPainter::CompositionMode_SourceIn);
    P.fillRect(Result.rect(), Colour);
    return Result;
}

static double Luminance(QRgb C)
{
    return (qRed(C) * .3 + qGreen(C) * .59 + qBlue(C) * .11) / 255;
}

QImage Relief(const QImage& Image, const std::vector<QColor>& Stops)
{
    // 40 % the value itself, 60 % its rank among all pixels: dark pictures keep contrast too.
    QImage Result = Image.convertToFormat(QImage::Format_ARGB32);
    constexpr int Levels = 128;
    std::vector<double> Rank(Levels + 1, 0);
    std::vector<double> Values;
    for (int Y = 0; Y < Result.height(); ++Y)
        for (int X = 0; X < Result.width(); ++X)
            if (qAlpha(Result.pixel(X, Y)) > 40) Values.push_back(Luminance(Result.pixel(X, Y)));
    if (Values.empty()) return Image;
    std::sort(Values.begin(), Values.end());
    const auto Share = [&](double Part) {
        return Values[static_cast<std::size_t>(Part * static_cast<double>(Values.size() - 1))];
    };
    const double Low = Share(.03), Span = std::max(Share(.97) - Low, .08);
    const auto Level = [&](double L) { return std::clamp((L - Low) / Span, 0.0, 1.0); };
    std::vector<int> Count(Levels + 1, 0);
    for (std::size_t I = 0; I < Values.size(); ++I) {
        const auto At = static_cast<std::size_t>(std::lround(Level(Values[I]) * Levels));
        Rank[At] += static_cast<double>(I) / static_cast<double>(Values.size());
        ++Count[At];
    }
    for (std::size_t I = 0; I <= Levels; ++I)
        if (Count[I]) Rank[I] /= Count[I];

    const double Last = static_cast<double>(Stops.size() - 1);
    for (int Y = 0; Y < Result.height(); ++Y) {
        QRgb* Row = reinterpret_cast<QRgb*>(Result.scanLine(Y));
        for (int X = 0; X < Result.width(); ++X) {
            const double Value = Level(Luminance(Row[X]));
            const auto At = static_cast<std::size_t>(std::lround(Value * Levels));
            const double Place = (Count[At] ? .4 * Value + .6 * Rank[At] : Value) * Last;
            const auto Stop = std::min(static_cast<std::size_t>(Place), Stops.size() - 2);
            const QColor Colour =
                Mix(Stops[Stop], Stops[Stop + 1], Place - static_cast<double>(Stop));
            Row[X] = qRgba(Colour.red(), Colour.green(), Colour.blue(), qAlpha(Row[X]));
        }
    }
    return Result.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage Scaled(const QImage& Image, int Width, int Height)
{
    return Image.scaled(std::max(Width, 1), std::max(Height, 1), Qt::IgnoreAspectRatio,
                        Qt::SmoothTransformation);
}

void DrawFitted(QPainter& P, const QImage& Image, const QRectF& Into)
{
    const double K = std::min(Into.width() / Image.width(), Into.height() / Image.height());
    const double W = Image.width() * K, H = Image.height() * K;
    // Scaled once to the device's size: QPainter's own filter loses detail when scaling far down.
    const QTransform T = P.combinedTransform();
    const double Device = std::hypot(T.m11(), T.m12());
    const QImage Ready = Scaled(Image, static_cast<int>(std::lround(W * Device)),
                                static_cast<int>(std::lround(H * Device)));
    P.drawImage(QRectF(Into.center().x() - W / 2, Into.center().y() - H / 2, W, H), Ready);
}

void SavePicture(const QImage& Image, const QString& Path, const char* Format, int Quality)
{
    QDir().mkpath(QFileInfo(Path).path());
    QByteArray Bytes;
    QBuffer Buffer(&Bytes);
    Buffer.open(QIODevice::WriteOnly);
    if (!Image.save(&Buffer, Format, Quality))
        FatalError(QString("cannot make a %1 for %2").arg(Format, Path));
    QSaveFile File(Path);
    if (!File.open(QIODevice::WriteOnly) || File.write(Bytes) != Bytes.size() || !File.commit())
        FatalError("cannot write " + Path + ": " + File.errorString());
}
