#include "board/board.h"
#include "media/media.h"
#include "records/fields.h"
#include "records/records.h"

constexpr int EnterKey = 13;
constexpr int BuiltInPictures = 360;
constexpr int PictureWidth = 720, PictureHeight = 420;

// The cover goes by the untrimmed text: blanks alone uncover the button, which then does nothing.
static void txtName_Change(int)
{
    SetVisible(imgNewHighOKDIS, txtName.Caption.empty());
}

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
    txtName_Change(0); // the name that is offered may be the one that stands there
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
    return Trimmed(LowerCase(txtName.Caption));
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
    SetPlayerHandlers();
}
