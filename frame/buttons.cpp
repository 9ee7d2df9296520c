// buttons.cpp: the one behaviour that all image buttons share.
#include "frame/frame.h"

// The button whose picture stands one pixel to the right and down, while ButtonDown is 1.
static ElementId MovedButton = NoElement;

static bool IsIn(const Element& E, const Element& Panel)
{
    for (ElementId Up = E.Id; Up != NoElement; Up = Elements[Up].Panel)
        if (Up == Panel.Id) return true;
    return false;
}

void ReleaseButton()
{
    if (MovedButton != NoElement) {
        const Element& Moved = Elements[MovedButton];
        SetPlace(Moved, Moved.Left - 1, Moved.Top - 1);
    }
    MovedButton = NoElement;
    GameState.ButtonDown = 0;
}

const Element* PressedButton()
{
    return MovedButton == NoElement ? nullptr : &Elements[MovedButton];
}

void ImageButtonDown(const Element& Button, MouseButton Mouse)
{
    if (Mouse != MouseButton::Left) return;
    if (IsIn(Button, picBevelRight) || IsIn(Button, picOptions)) HideTextNote();
    ReleaseButton(); // a press that ended nowhere has left its picture moved
    SetPlace(Button, Button.Left + 1, Button.Top + 1);
    MovedButton = Button.Id;
    GameState.ButtonDown = 1;
    if (Button.Does.Press) Button.Does.Press(Button.Index);
}

void ImageButtonUp(const Element& Button, MouseButton Mouse)
{
    // One flag serves all buttons: a press that began on another button fires this one.
    if (GameState.ButtonDown != 1 || Mouse != MouseButton::Left) return;
    ReleaseButton();
    if (Button.Does.Action) Button.Does.Action(Button.Index);
}
