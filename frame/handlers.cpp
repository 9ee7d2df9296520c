// handlers.cpp: which procedure an event of which element runs. An element with a Press or an
// Action is an image button: Press runs while the finger is down, Action on the release.
#include "board/board.h"
#include "frame/frame.h"
#include "media/media.h"
#include "records/records.h"
#include "screens/screens.h"
#include "words/word_play.h"

static void HideNoteOnClick(int)
{
    HideTextNote();
}
static void MixOnAction(int)
{
    MixTiles();
}
static void MinimizeOnClick(int)
{
    MinimizeGame();
}
static void CloseOnClick(int)
{
    StopMusic();
    CloseGame();
}

static void SetBoardHandlers()
{
    SetHandlers(imgTile, {.MouseDown = imgTile_MouseDown, .MouseMove = imgTile_MouseMove});
    SetHandlers(picBoard, {.MouseDown = picBoard_MouseDown, .MouseMove = picBoard_MouseMove});
    SetHandlers(picPeek, {.Click = picPeek_Click});
    SetHandlers(imgPeekTile, {.Click = picPeek_Click});
    SetHandlers(imgNote, {.Click = HideNoteOnClick});
    SetHandlers(lblNote, {.Click = HideNoteOnClick});
}

static void SetControlBarHandlers()
{
    // The pointer leaves the tiles over anything that stands on the bar.
    for (const Element& E : Elements)
        if (E.Panel == picBevelRight.Id || E.Panel == picNote.Id ||
            (E.Panel >= picGamePanel(1).Id && E.Panel <= picGamePanel(3).Id))
            SetHandlers(E, {.MouseMove = picBoard_MouseMove});
    // The bar between its buttons is what can be seen of the form.
    SetHandlers(frmMain, {.Click = HideNoteOnClick});
    for (const Element* Ground :
         {&picBevelRight, &picGamePanel(1), &picGamePanel(2), &picGamePanel(3), &picNote})
        SetHandlers(*Ground, {.MouseMove = picBoard_MouseMove, .Click = HideNoteOnClick});

    const auto Button = [](const Element& E, IndexHandler Press, IndexHandler Action) {
        SetHandlers(E, {.MouseMove = picBoard_MouseMove, .Press = Press, .Action = Action});
    };
    Button(imgbutStart, nullptr, imgbutStart_Action);
    Button(imgbutEnd, nullptr, imgbutEnd_Action);
    Button(imgMixFinesse, nullptr, MixOnAction);
    Button(imgMixAgility, nullptr, MixOnAction);
    Button(imgMixWisdom, nullptr, MixOnAction);
    Button(imgUndo, nullptr, imgUndo_Action);
    Button(imgPair, nullptr, imgPair_Action);
    Button(imgPeek, nullptr, imgPeek_Action);
    Button(imgPush, nullptr, imgPush_Action);
    Button(imgPause, imgPause_Press, imgPause_Action);
    Button(imgAcceptWord, nullptr, imgAcceptWord_Action);
    Button(imgUndoWisdom, nullptr, imgUndoWisdom_Action);
    SetHandlers(lblSkipTrack, {.MouseMove = picBoard_MouseMove, .Click = lblSkipTrack_Click});
    for (const Element* Disabled :
         {&imgMixFinesseDIS, &imgUndoDIS, &imgPairDIS, &imgPeekDIS, &imgMixAgilityDIS, &imgPauseDIS,
          &imgMixWisdomDIS, &imgPushDIS, &imgAcceptWordDIS, &imgUndoWisdomDIS, &imgButMenuDIS,
          &imgButLayoutDIS, &imgbutStartDIS, &imgEndDIS})
        SetHandlers(*Disabled, {.MouseMove = picBoard_MouseMove, .Click = HideNoteOnClick});
}

static void SetBoxHandlers()
{
    SetHandlers(imgNoMovesMixOK, {.Action = imgNoMovesMixOK_Action});
    SetHandlers(imgNoMovesOK, {.Action = imgNoMovesOK_Action});
    SetHandlers(imgEndYES, {.Action = imgEndYES_Action});
    SetHandlers(imgEndNO, {.Action = imgEndNO_Action});
    SetHandlers(imgCongratsOK, {.Action = imgCongratsOK_Action});
}

// The pointer leaves the tiles over any panel.
static void LetPanelsClearTheHover()
{
    for (Element& E : Elements)
        if (E.Kind == ElementKind::Panel && !E.Does.MouseMove)
            E.Does.MouseMove = picBoard_MouseMove;
}

void SetAllHandlers()
{
    SetHandlers(tmrLogo, {.Tick = tmrLogo_Tick});
    SetHandlers(tmrTitle, {.Tick = tmrTitle_Tick});
    SetHandlers(tmrAgility, {.Tick = tmrAgility_Tick});
    SetHandlers(tmrPause, {.Tick = tmrPause_Tick});
    MainKeyDown = MainScreen_KeyDown;
    SetBoardHandlers();
    SetControlBarHandlers();
    SetBoxHandlers();
    SetHandlers(imgWindowMode, {.Click = SetWindowMode});
    SetHandlers(lblMinimize, {.Click = MinimizeOnClick});
    SetHandlers(lblCloseGame, {.Click = CloseOnClick});
    SetScreenHandlers();
    SetRecordHandlers();
    LetPanelsClearTheHover();
}
