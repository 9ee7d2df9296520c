// forms_notes.cpp: the 13 notes, the LED digits and the blue digits

#include "forms.h"

// The words of a note. Where a number is laid over the note, the words keep to the upper part.
struct NoteRow {
    Sign Drawn;
    const char* First;
    const char* Second;
    bool Number;
};
static const NoteRow Notes[] = {
    {Sign::Differ, "These two", "do not match", false}, // 0
    {Sign::Lock, "This tile", "is blocked", false},     // 1
    {Sign::Undo, "Nothing", "to undo", false},          // 2
    {Sign::Sleep, "The game", "is over", false},        // 3
    {Sign::Start, "Press START", "to play", false},     // 4
    {Sign::Hand, "Now pick", "any tile", false},        // 5
    {Sign::Pair, "Open pairs", "", true},               // 6
    {Sign::Flame, "Streak bonus", "", true},            // 7
    {Sign::Star, "Board bonus", "", true},              // 8
    {Sign::Short, "Three letters", "at least", false},  // 9
    {Sign::Book, "Not in the", "dictionary", false},    // 10
    {Sign::Quill, "Last word", "", true},               // 11
    {Sign::Clock, "Time left is", "your score", false}, // 12
};

void DrawNoteCell(QPainter& P, const QRectF& Cell, int Number)
{
    const NoteRow& Note = Notes[Number];
    P.save();
    P.translate(Cell.topLeft());
    DrawParchment(P, QRectF(.5, .5, Cell.width() - 1, Cell.height() - 1));
    P.strokePath(Scalloped(QRectF(4.5, 4.5, Cell.width() - 9, Cell.height() - 9), 5),
                 Line(Alpha("#9a6a20", .55), .9));
    SignInk Colours;
    Colours.Ground = QColor("#fbf2d8");
    const TextStyle Words{
        .Size = 14.5, .Kind = Weight::Bold, .Colour = QColor(Ink), .Shadow = false};
    if (Note.Number) {
        // The number stands in the middle of the note, so sign and words share the upper rows.
        const double Width = TextWidth(Note.First, Words), Left = (Cell.width() - Width - 32) / 2;
        DrawSign(P, Note.Drawn, QRectF(Left, 11, 25, 25), Colours);
        TextStyle AfterSign = Words;
        AfterSign.Place = Qt::AlignLeft | Qt::AlignVCenter;
        DrawText(P, QRectF(Left + 32, 11, Width + 2, 25), Note.First, AfterSign);
    } else {
        DrawSign(P, Note.Drawn, QRectF(11, 20, 39, 39), Colours);
        const QRectF Right(52, 0, Cell.width() - 61, Cell.height());
        DrawText(P, QRectF(Right.x(), 20, Right.width(), 20), Note.First, Words);
        DrawText(P, QRectF(Right.x(), 40, Right.width(), 20), Note.Second, Words);
    }
    P.restore();
}

// Segments a..g of a digit, as bits 0..6.
static const int SegmentsOf[10] = {0x3f, 0x06, 0x5b, 0x4f, 0x66, 0x6d, 0x7d, 0x07, 0x7f, 0x6f};

static QPainterPath Segment(double X1, double Y1, double X2, double Y2, double Thick)
{
    const double H = Thick / 2;
    if (Y1 == Y2)
        return Polygon({{X1, Y1},
                        {X1 + H, Y1 - H},
                        {X2 - H, Y1 - H},
                        {X2, Y1},
                        {X2 - H, Y1 + H},
                        {X1 + H, Y1 + H}});
    return Polygon({{X1, Y1},
                    {X1 + H, Y1 + H},
                    {X1 + H, Y2 - H},
                    {X1, Y2},
                    {X1 - H, Y2 - H},
                    {X1 - H, Y1 + H}});
}

void DrawLedDigit(QPainter& P, const QRectF& Cell, int Number)
{
    P.fillRect(
        Cell, Linear(Cell.right(), Cell.top(), Cell.left(), Cell.bottom(), {"#170d05", "#0a0603"}));
    const double L = Cell.x() + 8, R = Cell.right() - 8, T = Cell.y() + 8, B = Cell.bottom() - 8;
    const double M = (T + B) / 2, Gap = .9, Thick = 6;
    const QPainterPath Parts[] = {
        Segment(L + Gap, T, R - Gap, T, Thick), Segment(R, T + Gap, R, M - Gap, Thick),
        Segment(R, M + Gap, R, B - Gap, Thick), Segment(L + Gap, B, R - Gap, B, Thick),
        Segment(L, M + Gap, L, B - Gap, Thick), Segment(L, T + Gap, L, M - Gap, Thick),
        Segment(L + Gap, M, R - Gap, M, Thick),
    };
    const int Bits = Number == 0 ? 0 : SegmentsOf[Number - 1];
    P.save();
    P.setClipRect(Cell);
    for (int I = 0; I < 7; ++I)
        if (!(Bits >> I & 1)) P.fillPath(Parts[I], QColor("#2c1a0a"));
    for (int I = 0; I < 7; ++I)
        if (Bits >> I & 1)
            for (const double Width : {9.0, 6.0, 3.0})
                P.strokePath(Parts[I], Line(Alpha("#ff8a10", .13), Width));
    for (int I = 0; I < 7; ++I)
        if (Bits >> I & 1)
            P.fillPath(Parts[I], Linear(R, T, L, B, {"#ffd884", DigitAmber, "#ff9a18"}));
    P.restore();
}

static void DrawBlueDigit(QPainter& P, const QRectF& Cell, int Number)
{
    DrawText(P, Cell.adjusted(-1, 0, 1, 0), QString::number(Number),
             {.Size = 18, .Kind = Weight::Bold, .Colour = QColor(DigitBlue), .Shadow = false});
}

void AddNotes(FormPictures& To)
{
    AddStore(To, "clpNotes", MainSheet, DrawNoteCell);
    AddStore(To, "clpDigits", MainSheet, DrawLedDigit);
    AddStore(To, "clpBlueDigitsA", MainSheet, DrawBlueDigit);
    AddStore(To, "clpBlueDigitsB", MainSheet, DrawBlueDigit);
}
