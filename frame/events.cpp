#include "frame/frame.h"

void (*MainKeyDown)(std::string_view Key, bool Shift, bool Ctrl, bool Alt) = nullptr;

// The element on which the mouse button went down last: a Click needs both ends on one element.
static ElementId PressedId = NoElement;

struct Inside {
    int X, Y;
};

static Inside PointIn(const Element& E, float X, float Y)
{
    const Point Place = ScreenPlace(E);
    return {static_cast<int>(X - Place.X), static_cast<int>(Y - Place.Y)};
}

static bool IsImageButton(const Element& E)
{
    return E.Does.Press || E.Does.Action;
}

void DeliverMouseMove(const Element& E, int X, int Y)
{
    if (E.Does.MouseMove) E.Does.MouseMove(E.Index, MouseButton::Left, X, Y);
}

void DeliverMouseDown(const Element& E, MouseButton Button, int X, int Y)
{
    if (IsImageButton(E)) ImageButtonDown(E, Button);
    if (E.Does.MouseDown) E.Does.MouseDown(E.Index, Button, X, Y);
}

void DeliverMouseUp(const Element& E, MouseButton Button, int X, int Y)
{
    if (IsImageButton(E)) ImageButtonUp(E, Button);
    if (E.Does.MouseUp) E.Does.MouseUp(E.Index, Button, X, Y);
}

const Element* SendMouseMove(float X, float Y)
{
    const Element* Hit = HitTest(X, Y);
    if (!Hit) return nullptr;
    const Inside At = PointIn(*Hit, X, Y);
    DeliverMouseMove(*Hit, At.X, At.Y);
    return Hit;
}

const Element* SendMouseDown(MouseButton Button, float X, float Y)
{
    const Element* Hit = HitTest(X, Y);
    PressedId = Hit ? Hit->Id : NoElement;
    if (!Hit) return nullptr;
    if (Hit->Kind == ElementKind::TextBox) SetFocus(*Hit);
    const Inside At = PointIn(*Hit, X, Y);
    DeliverMouseDown(*Hit, Button, At.X, At.Y);
    return Hit;
}

const Element* SendMouseUp(MouseButton Button, float X, float Y)
{
    const Element* Hit = HitTest(X, Y);
    const bool Clicked = Hit && Hit->Id == PressedId;
    PressedId = NoElement;
    if (!Hit) return nullptr;
    const Inside At = PointIn(*Hit, X, Y);
    DeliverMouseUp(*Hit, Button, At.X, At.Y);
    if (Clicked && Hit->Does.Click) Hit->Does.Click(Hit->Index);
    return Hit;
}

void SendKeyDown(std::string_view Key, bool Shift, bool Ctrl, bool Alt)
{
    if (MainKeyDown && frmMain.Visible) MainKeyDown(Key, Shift, Ctrl, Alt);
}

void SendText(const Element& TextBox, std::string_view Text)
{
    SetText(TextBox, Text);
}

void SendCharacter(const Element& TextBox, std::string_view Character)
{
    AddToCaption(TextBox, Character);
    if (TextBox.Does.Change) TextBox.Does.Change(TextBox.Index);
}

void SendKeyPress(const Element& TextBox, int Key)
{
    if (TextBox.Does.KeyPress) TextBox.Does.KeyPress(TextBox.Index, Key);
}

void SendDropDown(const Element& ListBox)
{
    if (ListBox.Does.DropDown) ListBox.Does.DropDown(ListBox.Index);
}

void SendChoice(const Element& ListBox, std::string_view Item)
{
    SelectItem(ListBox, Item);
    if (ListBox.Does.Click) ListBox.Does.Click(ListBox.Index);
}
