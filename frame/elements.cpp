#include "frame/elements.h"

#include <algorithm>
#include <cstring>

Element Elements[ElementCount];

// What the last column of the table says of an element.
struct Look {
    TextFont Font;
    Colour Ink;
    bool Art = false, OnTop = false, Pair = false, Ghost = false;
    int Interval = 0, Columns = 1, Rows = 1, Shade = 0;
};

namespace looks
{
constexpr bool Bold = true, Regular = false;
constexpr FontFace Sans = FontFace::Sans, Serif = FontFace::Serif;
constexpr Align Left = Align::Left, Centre = Align::Centre, Right = Align::Right;
constexpr Look Plain{};
constexpr Look Art{.Art = true};
constexpr Look OnTop{.Art = true, .OnTop = true};

constexpr Look Text(FontFace Face, int Size, bool Weight, Align Place, int R, int G, int B)
{
    return {.Font = {Face, Size, Weight, Place},
            .Ink = {static_cast<std::uint8_t>(R), static_cast<std::uint8_t>(G),
                    static_cast<std::uint8_t>(B)}};
}
constexpr Look Pair(FontFace Face, int Size, bool Weight, Align Place, int R, int G, int B)
{
    Look Result = Text(Face, Size, Weight, Place, R, G, B);
    Result.Pair = true;
    return Result;
}
constexpr Look GhostPair(FontFace Face, int Size, bool Weight, Align Place, int R, int G, int B)
{
    Look Result = Pair(Face, Size, Weight, Place, R, G, B);
    Result.Ghost = true;
    return Result;
}
constexpr Look TopText(FontFace Face, int Size, bool Weight, Align Place, int R, int G, int B)
{
    Look Result = Text(Face, Size, Weight, Place, R, G, B);
    Result.OnTop = true;
    return Result;
}
constexpr Look Ghost{.Ghost = true};
constexpr Look GhostArt{.Art = true, .Ghost = true};
constexpr Look PlateOnTop{.Art = true, .OnTop = true, .Ghost = true};
constexpr Look Dim(int Shade)
{
    return {.Shade = Shade};
}
constexpr Look GhostDim(int Shade)
{
    return {.Ghost = true, .Shade = Shade};
}
constexpr Look Every(int Interval)
{
    return {.Interval = Interval};
}
constexpr Look Grid(int Columns, int Rows)
{
    return {.Columns = Columns, .Rows = Rows};
}
} // namespace looks

// Light text throws a dark shadow; dark text, as on the notes, is pressed in and shows a light rim.
constexpr Colour ShadowInk = {12, 16, 12}, RimInk = {255, 248, 224};

// A row of the table of the screens.
struct ElementRow {
    ElementKind Kind;
    const char* Name;
    ElementId Id;
    bool Array;
    int First, Count;
    ElementId Panel;
    float Left, Top, Width, Height;
    int PerRow;
    float StepX, RowX, RowY;
    bool Shown;
    Look Style;
};

using namespace looks;
static const ElementRow Rows[] = {
#define ONE(Kind, Name, Panel, Left, Top, Width, Height, Shown, Look)                              \
    {ElementKind::Kind,                                                                            \
     #Name,                                                                                        \
     Id_##Name,                                                                                    \
     false,                                                                                        \
     0,                                                                                            \
     1,                                                                                            \
     Panel,                                                                                        \
     Left,                                                                                         \
     Top,                                                                                          \
     Width,                                                                                        \
     Height,                                                                                       \
     1,                                                                                            \
     0,                                                                                            \
     0,                                                                                            \
     0,                                                                                            \
     Shown,                                                                                        \
     Look},
#define MANY(Kind, Name, First, Count, Panel, Left, Top, Width, Height, PerRow, StepX, RowX, RowY, \
             Shown, Look)                                                                          \
    {ElementKind::Kind,                                                                            \
     #Name,                                                                                        \
     Id_##Name,                                                                                    \
     true,                                                                                         \
     First,                                                                                        \
     Count,                                                                                        \
     Panel,                                                                                        \
     Left,                                                                                         \
     Top,                                                                                          \
     Width,                                                                                        \
     Height,                                                                                       \
     PerRow,                                                                                       \
     StepX,                                                                                        \
     RowX,                                                                                         \
     RowY,                                                                                         \
     Shown,                                                                                        \
     Look},
#include "frame/screens.def"
};

static Element& Changeable(const Element& E)
{
    return Elements[E.Id];
}

const Element& ElementArray::operator()(int Index) const
{
    if (Index < First || Index >= First + Count)
        FatalError(std::string(Name) + "(" + std::to_string(Index) + ") is outside " +
                   std::to_string(First) + ".." + std::to_string(First + Count - 1));
    return Elements[FirstId + Index - First];
}

static void MakeElement(const ElementRow& Row, int Place)
{
    Element& E = Elements[Row.Id + Place];
    E = Element();
    E.Kind = Row.Kind;
    E.Name = Row.Name;
    E.Index = Row.Array ? Row.First + Place : -1;
    E.Id = Row.Id + Place;
    E.Panel = Row.Panel;
    const int Column = Place % Row.PerRow, Line = Place / Row.PerRow;
    E.Left =
        Row.Left + static_cast<float>(Column) * Row.StepX + static_cast<float>(Line) * Row.RowX;
    E.Top = Row.Top + static_cast<float>(Line) * Row.RowY;
    E.Width = Row.Width;
    E.Height = Row.Height;
    E.Visible = Row.Shown;
    E.StaysOnTop = Row.Style.OnTop;
    E.Ghost = Row.Style.Ghost;
    E.Font = Row.Style.Font;
    E.Ink = Row.Style.Ink;
    E.Interval = Row.Style.Interval;
    E.Shade = Row.Style.Shade;
    E.Columns = Row.Style.Columns;
    E.Rows = Row.Style.Rows;
    if (Row.Style.Art) E.Shows = FormPicture(E);
    if (Row.Style.Pair && Place == 1) {
        E.Top += 1;
        E.Ink = E.Ink.Red < 128 ? RimInk : ShadowInk;
    }
}

void InitElements()
{
    for (const ElementRow& Row : Rows)
        for (int Place = 0; Place < Row.Count; ++Place) MakeElement(Row, Place);
    for (const ElementRow& Row : Rows) {
        if (Row.Panel == NoElement) continue;
        for (int Place = 0; Place < Row.Count; ++Place) BringToFront(Elements[Row.Id + Place]);
        if (Row.Style.Pair) BringToFront(Elements[Row.Id]); // the text over its shadow
    }
    SetDesignPlaces();
    SetDesignCaptions();
    StaleRectangles().clear();
}

std::string ElementText(const Element& E)
{
    return E.Index < 0 ? E.Name : std::string(E.Name) + "(" + std::to_string(E.Index) + ")";
}

static const ElementRow* FindRow(std::string_view Name)
{
    for (const ElementRow& Row : Rows)
        if (Name == Row.Name) return &Row;
    return nullptr;
}

const Element* FindElement(std::string_view Name, int Index)
{
    const ElementRow* Row = FindRow(Name);
    if (!Row || Row->Array != (Index >= 0)) return nullptr;
    if (!Row->Array) return &Elements[Row->Id];
    if (Index < Row->First || Index >= Row->First + Row->Count) return nullptr;
    return &Elements[Row->Id + Index - Row->First];
}

bool IsShown(const Element& E)
{
    for (const Element* Up = &E;; Up = &Elements[Up->Panel]) {
        if (Up->Kind == ElementKind::Screen) return Up->Visible;
        if (!Up->Visible) return false;
    }
}

Point ScreenPlace(const Element& E)
{
    Point Place{0, 0};
    for (const Element* Up = &E; Up->Kind != ElementKind::Screen; Up = &Elements[Up->Panel]) {
        Place.X += Up->Left;
        Place.Y += Up->Top;
    }
    return Place;
}

void SetVisible(const Element& E, bool Visible)
{
    if (E.Visible == Visible) return;
    if (!Visible) MarkStale(E);
    Changeable(E).Visible = Visible;
    if (Visible) MarkStale(E);
}

void Show(const ElementArray& A)
{
    for (int I = A.First; I < A.First + A.Count; ++I) Show(A(I));
}

void Hide(const ElementArray& A)
{
    for (int I = A.First; I < A.First + A.Count; ++I) Hide(A(I));
}

void SetPlace(const Element& E, float NewLeft, float NewTop)
{
    if (E.Left == NewLeft && E.Top == NewTop) return;
    MarkStale(E);
    Changeable(E).Left = NewLeft;
    Changeable(E).Top = NewTop;
    MarkStale(E);
    if (&E == &frmMain) Platform.WindowPlace(static_cast<int>(NewLeft), static_cast<int>(NewTop));
}

void SetSize(const Element& E, float Width, float Height)
{
    if (E.Width == Width && E.Height == Height) return;
    MarkStale(E);
    Changeable(E).Width = Width;
    Changeable(E).Height = Height;
    MarkStale(E);
}

void SetPicture(const Element& E, const Picture& New)
{
    if (E.Shows == New) return;
    Changeable(E).Shows = New;
    MarkStale(E);
}

void SetCaption(const Element& E, std::string_view Text)
{
    if (E.Caption == Text) return;
    Changeable(E).Caption = Text;
    MarkStale(E);
}

void AddToCaption(const Element& E, std::string_view Text)
{
    Changeable(E).Caption += Text;
    MarkStale(E);
}

void SetCaption(const ElementArray& Shadowed, std::string_view Text)
{
    for (int I = Shadowed.First; I < Shadowed.First + Shadowed.Count; ++I)
        SetCaption(Shadowed(I), Text);
}

void SetInk(const Element& E, Colour New)
{
    if (E.Ink == New) return;
    Changeable(E).Ink = New;
    MarkStale(E);
}

void SetTag(const Element& E, std::string_view Tag)
{
    Changeable(E).Tag = Tag;
}

void SetToolTip(const Element& E, std::string_view Text)
{
    Changeable(E).ToolTip = Text;
}

void SetToolTip(const ElementArray& A, std::string_view Text)
{
    for (int I = A.First; I < A.First + A.Count; ++I) SetToolTip(A(I), Text);
}

void SetHandlers(const Element& E, const Handlers& Does)
{
    Changeable(E).Does = Does;
}

void SetHandlers(const ElementArray& A, const Handlers& Does)
{
    for (int I = A.First; I < A.First + A.Count; ++I) SetHandlers(A(I), Does);
}

void SetBoxes(const Element& Panel, std::vector<FilledBox> Boxes)
{
    Changeable(Panel).Boxes = std::move(Boxes);
    MarkStale(Panel);
}

void SetLine(const Element& E, int X1, int Y1, int X2, int Y2)
{
    if (static_cast<int>(E.Left) == X1 && static_cast<int>(E.Top) == Y1 && E.EndX == X2 &&
        E.EndY == Y2)
        return;
    MarkStale(E);
    Element& Line = Changeable(E);
    Line.Left = static_cast<float>(X1);
    Line.Top = static_cast<float>(Y1);
    Line.EndX = X2;
    Line.EndY = Y2;
    Line.Width = static_cast<float>(X2 - X1 + 1);
    Line.Height = static_cast<float>(Y2 - Y1 + 1);
    MarkStale(E);
}

// --- text boxes and list boxes ---

static ElementId FocusId = NoElement;

void SetText(const Element& E, std::string_view Text)
{
    if (E.Caption == Text) return;
    Changeable(E).Caption = Text;
    MarkStale(E);
    if (E.Does.Change) E.Does.Change(E.Index);
}

void SetFocus(const Element& E)
{
    FocusId = E.Id;
}

const Element* Focused()
{
    return FocusId != NoElement && IsShown(Elements[FocusId]) ? &Elements[FocusId] : nullptr;
}

void SetItems(const Element& E, const std::vector<std::string>& Items)
{
    Changeable(E).Items = Items;
    ++Changeable(E).ItemsChanged;
    Changeable(E).Caption.clear();
    MarkStale(E);
}

void SelectItem(const Element& E, std::string_view Item)
{
    const bool Known = std::find(E.Items.begin(), E.Items.end(), Item) != E.Items.end();
    SetCaption(E, Known ? Item : std::string_view());
}
