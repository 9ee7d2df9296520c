#include "board/board.h"
#include "media/media.h"
#include "records/records.h"

#include <algorithm>
#include <cctype>

constexpr int EnterKey = 13;
constexpr int BuiltInPictures = 360;
constexpr int PictureWidth = 720, PictureHeight = 420;

void ShowCongratulations()
{
    Hide(picNewHigh);
    Show(picCongrats);
    if (GameState.LayoutGroup <= 2)
        LoadPicture(imgGameWon, "PH", LayoutIndex(), PictureWidth, PictureHeight);
    Show(picGameWon);
    PlaySound("RANK");
}

void ShowNewHigh()
{
    Hide(picCongrats);
    Show(picNewHigh);
    const int Number =
        GameState.LayoutGroup <= 2 ? LayoutIndex() : RandomBetween(1, BuiltInPictures);
    LoadPicture(imgGameWon, "PH", Number, PictureWidth, PictureHeight);
    Show(picGameWon);
    SetFocus(txtName);
    PlaySound("RANK");
}

std::string TypedName()
{
    const std::string& Text = txtName.Caption;
    const std::size_t First = Text.find_first_not_of(' ');
    if (First == std::string::npos) return "";
    std::string Name = Text.substr(First, Text.find_last_not_of(' ') - First + 1);
    std::transform(Name.begin(), Name.end(), Name.begin(),
                   [](unsigned char C) { return static_cast<char>(std::tolower(C)); });
    return Name;
}

// The cover goes by the untrimmed text: blanks alone uncover the button, which then does nothing.
static void txtName_Change(int)
{
    SetVisible(imgNewHighOKDIS, txtName.Caption.empty());
}

static void txtName_KeyPress(int, int Key)
{
    if (Key != EnterKey || TypedName().empty()) return;
    GameState.TypedEntry = 1;
    imgNewHighOK_Action(0);
}

void SetRecordHandlers()
{
    SetHandlers(txtName, {.Change = txtName_Change, .KeyPress = txtName_KeyPress});
    SetHandlers(imgNewHighOK, {.Action = imgNewHighOK_Action});
}
