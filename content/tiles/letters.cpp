// letters.cpp: the letter tiles

#include "letters.h"

// The alphabet, then ten letters that words need most.
static const char LetterFaces[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZAEIOUAEIST";
static_assert(sizeof(LetterFaces) == FaceCount + 1);

void DrawLetterTile(QPainter& P, int FaceNumber)
{
    const QString Letter(QChar(LetterFaces[FaceNumber - 1]));
    const QColor Body = QString("AEIOU").contains(Letter) ? VowelRed : Ink;
    // All capitals have one height and stand on one line; a wide one is narrowed to fit.
    constexpr double CapHeight = 70, Base = 85;
    QPainterPath Path = TextPath(FontFile::SerifBold, Letter, CapHeight / .729);
    const QRectF Box = Path.boundingRect();
    const double Narrow = std::min(1.0, 84 / Box.width());
    Path = Moved(Path, 50 - Box.center().x() * Narrow, Base, 0, Narrow, 1);
    // A light edge below and right makes the letter look cut into the tile.
    Fill(P, Path.translated(1.3, 1.5), Alpha("#ffffff", .8));
    Fill(P, Path, Linear(0, 15, 0, Base, {Light(Body, .1), Body, Dark(Body, .2)}));
}
