#include "frame/elements.h"

static Element& At(ElementId Id)
{
    return Elements[Id];
}

static void Unlink(Element& E)
{
    Element& Panel = At(E.Panel);
    if (E.Behind != NoElement)
        At(E.Behind).Before = E.Before;
    else if (Panel.Rearmost == E.Id)
        Panel.Rearmost = E.Before;
    if (E.Before != NoElement)
        At(E.Before).Behind = E.Behind;
    else if (Panel.Foremost == E.Id)
        Panel.Foremost = E.Behind;
    E.Behind = E.Before = NoElement;
}

static void LinkBefore(Element& E, ElementId Behind) // NoElement: rearmost
{
    Element& Panel = At(E.Panel);
    E.Behind = Behind;
    E.Before = Behind == NoElement ? Panel.Rearmost : At(Behind).Before;
    if (E.Before != NoElement)
        At(E.Before).Behind = E.Id;
    else
        Panel.Foremost = E.Id;
    if (Behind != NoElement)
        At(Behind).Before = E.Id;
    else
        Panel.Rearmost = E.Id;
}

// A whole screen stands in no panel, so nothing lies over it or under it.
void BringToFront(const Element& E)
{
    if (E.Panel == NoElement || At(E.Panel).Foremost == E.Id) return;
    Element& Moved = At(E.Id);
    Unlink(Moved);
    ElementId Behind = At(E.Panel).Foremost;
    while (!E.StaysOnTop && Behind != NoElement && At(Behind).StaysOnTop)
        Behind = At(Behind).Behind;
    LinkBefore(Moved, Behind);
    MarkStale(E);
}

void SendToBack(const Element& E)
{
    if (E.Panel == NoElement || At(E.Panel).Rearmost == E.Id) return;
    Element& Moved = At(E.Id);
    Unlink(Moved);
    LinkBefore(Moved, NoElement);
    MarkStale(E);
}

static int Depth(const Element& E)
{
    int Result = 0;
    for (const Element* Up = &E; Up->Panel != NoElement; Up = &At(Up->Panel)) ++Result;
    return Result;
}

bool StandsBefore(const Element& A, const Element& B)
{
    // Compare the two ancestors that stand in one panel; an element stands before its own panel.
    const Element *UpA = &A, *UpB = &B;
    const int DepthA = Depth(A), DepthB = Depth(B);
    for (int D = DepthA; D > DepthB; --D) UpA = &At(UpA->Panel);
    for (int D = DepthB; D > DepthA; --D) UpB = &At(UpB->Panel);
    if (UpA == UpB) return DepthA > DepthB;
    while (UpA->Panel != UpB->Panel) {
        UpA = &At(UpA->Panel);
        UpB = &At(UpB->Panel);
    }
    for (ElementId Id = UpA->Behind; Id != NoElement; Id = At(Id).Behind)
        if (Id == UpB->Id) return true;
    return false;
}

static const Element* HitIn(const Element& Panel, float X, float Y)
{
    for (ElementId Id = Panel.Foremost; Id != NoElement; Id = At(Id).Behind) {
        const Element& E = At(Id);
        if (!E.Visible || E.Ghost || E.Kind == ElementKind::Timer) continue;
        if (E.Kind == ElementKind::Line) continue;
        const float InX = X - E.Left, InY = Y - E.Top;
        if (InX < 0 || InY < 0 || InX >= E.Width || InY >= E.Height) continue;
        if (E.Kind == ElementKind::Panel)
            if (const Element* Hit = HitIn(E, InX, InY)) return Hit;
        return &E;
    }
    return nullptr;
}

const Element* HitTest(float X, float Y)
{
    return frmMain.Visible ? HitIn(frmMain, X, Y) : nullptr;
}
