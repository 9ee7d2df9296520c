#include "frame/frame.h"

void ShowTextNote(std::string_view Text)
{
    SetCaption(lblNote, Text);
    Show(lblNote);
    Show(imgNote);
}

void HideTextNote()
{
    Hide(lblNote);
    Hide(imgNote);
}
