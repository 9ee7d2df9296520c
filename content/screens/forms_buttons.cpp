// forms_buttons.cpp: every button of every screen, as a table

#include "forms.h"

struct ButtonRow {
    const char* Element;
    Sheet On;
    Sign Drawn;
    const char* Caption;
    ButtonState State;
    ButtonPlace Place = ButtonPlace::Middle;
};

static const ButtonPlace Column = ButtonPlace::Column;
static const ButtonState Rest = ButtonState::Rest, Lit = ButtonState::Lit,
                         Off = ButtonState::Disabled;

static const ButtonRow Buttons[] = {
    // the control bar
    {"imgButMenu", MainSheet, Sign::Menu, "Menu", Rest, Column},
    {"imgButMenuDIS", MainSheet, Sign::Menu, "Menu", Off, Column},
    {"imgButLayout", MainSheet, Sign::Layout, "Layout", Rest, Column},
    {"imgButLayoutDIS", MainSheet, Sign::Layout, "Layout", Off, Column},
    {"imgbutStart", MainSheet, Sign::Start, "START", Lit},
    {"imgbutStartDIS", MainSheet, Sign::Start, "START", Off},
    {"imgbutEnd", MainSheet, Sign::End, "END", Rest},
    {"imgEndDIS", MainSheet, Sign::End, "END", Off},
    // powers
    {"imgMixFinesse", MainSheet, Sign::Mix, "MIX", Rest},
    {"imgMixFinesseDIS", MainSheet, Sign::Mix, "MIX", Off},
    {"imgUndo", MainSheet, Sign::Undo, "UNDO", Rest},
    {"imgUndoDIS", MainSheet, Sign::Undo, "UNDO", Off},
    {"imgPair", MainSheet, Sign::Pair, "PAIR", Rest},
    {"imgPairDIS", MainSheet, Sign::Pair, "PAIR", Off},
    {"imgPeek", MainSheet, Sign::Peek, "PEEK", Rest},
    {"imgPeekDIS", MainSheet, Sign::Peek, "PEEK", Off},
    {"imgMixAgility", MainSheet, Sign::Mix, "MIX", Rest},
    {"imgMixAgilityDIS", MainSheet, Sign::Mix, "MIX", Off},
    {"imgPause", MainSheet, Sign::Pause, "PAUSE", Rest},
    {"imgPauseDIS", MainSheet, Sign::Pause, "PAUSE", Off},
    {"imgMixWisdom", MainSheet, Sign::Mix, "MIX", Rest},
    {"imgMixWisdomDIS", MainSheet, Sign::Mix, "MIX", Off},
    {"imgPush", MainSheet, Sign::Push, "PUSH", Rest},
    {"imgPushDIS", MainSheet, Sign::Push, "PUSH", Off},
    {"imgUndoWisdom", MainSheet, Sign::Erase, "ERASE", Rest},
    {"imgUndoWisdomDIS", MainSheet, Sign::Erase, "ERASE", Off},
    {"imgAcceptWord", MainSheet, Sign::Accept, "ACCEPT", Rest},
    {"imgAcceptWordDIS", MainSheet, Sign::Accept, "ACCEPT", Off},
    // the menu
    {"imgMenuOptions", MenuSheet, Sign::Options, "Options", Rest, Column},
    {"imgMenuScores", MenuSheet, Sign::Scores, "High scores", Rest, Column},
    {"imgMenuHistory", MenuSheet, Sign::History, "History", Rest, Column},
    {"imgMenuProfile", MenuSheet, Sign::Profile, "Player profile", Rest, Column},
    {"imgMenuHelp", MenuSheet, Sign::Help, "Help", Rest, Column},
    {"imgExpansionPacks", MenuSheet, Sign::Packs, "Content packs", Rest, Column},
    {"imgExit", MenuSheet, Sign::Exit, "Leave Pagodas", Rest, Column},
    {"imgCancel", MenuSheet, Sign::Back, "Back to the board", Lit, Column},
    // boxes
    {"imgExitYES", ExitSheet, Sign::Yes, "Yes", Rest},
    {"imgExitNO", ExitSheet, Sign::No, "No", Rest},
    {"imgEndYES", EndSheet, Sign::Yes, "Yes", Rest},
    {"imgEndNO", EndSheet, Sign::No, "No", Rest},
    {"imgNoMovesOK", NoMovesSheet, Sign::Yes, "OK", Rest},
    {"imgNoMovesMixOK", NoMovesSheet, Sign::Yes, "OK", Rest},
    {"imgCongratsOK", WonSheet, Sign::Yes, "OK", Rest},
    {"imgNewHighOK", WonSheet, Sign::Yes, "OK", Rest},
    {"imgNewHighOKDIS", WonSheet, Sign::Yes, "OK", Off},
    // the feet of the full-size screens
    {"imgButOptionsAccept", OptionsSheet, Sign::Yes, "Accept", Rest},
    {"imgButOptionsCancel", OptionsSheet, Sign::No, "Cancel", Rest},
    {"imgRandomOk", ChooserSheet, Sign::Yes, "OK", Rest},
    {"imgButPlayThis", RecordsSheet, Sign::Play, "Play this", Rest},
    {"imgButPlayThisDIS", RecordsSheet, Sign::Play, "Play this", Off},
    {"imgButHistoryScores", RecordsSheet, Sign::History, "History", Rest},
    {"imgButProfileScores", RecordsSheet, Sign::Profile, "Profile", Rest},
    {"imgOKScores", RecordsSheet, Sign::Yes, "OK", Rest},
    {"imgHisClearThis", RecordsSheet, Sign::Clear, "Clear list", Rest},
    {"imgHisScores", RecordsSheet, Sign::Scores, "Scores", Rest},
    {"imgHisProfile", RecordsSheet, Sign::Profile, "Profile", Rest},
    {"imgHisCancel", RecordsSheet, Sign::No, "Cancel", Rest},
    {"imgHisOK", RecordsSheet, Sign::Yes, "OK", Rest},
    {"imgProScores", RecordsSheet, Sign::Scores, "Scores", Rest},
    {"imgProHistory", RecordsSheet, Sign::History, "History", Rest},
    {"imgProCancel", RecordsSheet, Sign::No, "Cancel", Rest},
    {"imgProOK", RecordsSheet, Sign::Yes, "OK", Rest},
    {"imgHelpBut(1)", HelpSheet, Sign::None, "The games", Rest},
    {"imgHelpBut(2)", HelpSheet, Sign::None, "Free tiles", Rest},
    {"imgHelpBut(3)", HelpSheet, Sign::None, "Powers", Rest},
    {"imgHelpBut(4)", HelpSheet, Sign::None, "Scores", Rest},
    {"imgHelpBut(5)", HelpSheet, Sign::None, "Boards", Rest},
    {"imgBackToGame", HelpSheet, Sign::Back, "Back", Lit},
    // the chooser
    {"imgChooseLayout(0)", ChooserSheet, Sign::Layout, "Choose a layout", Rest},
    {"imgChooseLayout(1)", ChooserSheet, Sign::Layout, "Choose a layout", Lit},
    {"imgRandomLayout(0)", ChooserSheet, Sign::Dice, "Random layout", Rest},
    {"imgRandomLayout(1)", ChooserSheet, Sign::Dice, "Random layout", Lit},
    {"imgLaySetUP", ChooserSheet, Sign::Up, "", Rest},
    {"imgLaySetDN", ChooserSheet, Sign::Down, "", Rest},
    {"imgSetUP(0)", StockSheet, Sign::Up, "", Rest},
    {"imgSetUP(1)", StockSheet, Sign::Up, "", Lit},
    {"imgSetDN(0)", StockSheet, Sign::Down, "", Rest},
    {"imgSetDN(1)", StockSheet, Sign::Down, "", Lit},
    {"ArrowDN(0)", StockSheet, Sign::Down, "", Rest},
    {"ArrowDN(1)", StockSheet, Sign::Down, "", Lit},
};

// A group of layouts: its numbers, and how many tiles they have.
struct GroupRow {
    const char* Numbers;
    const char* Tiles;
};
static const GroupRow Groups[] = {
    {"1–12", "72 tiles"},     {"13–24", "144 tiles"}, {"25–36", "144 tiles"},
    {"37–48", "144 tiles"},   {"49–60", "144 tiles"}, {"61–72", "144 tiles"},
    {"73–84", "216 tiles"},   {"85–96", "216 tiles"}, {"97–108", "216 tiles"},
    {"109–120", "288 tiles"},
};

static void AddGroups(FormPictures& To, const QString& Store, ButtonState State)
{
    AddStore(To, Store, StockSheet, [&](QPainter& P, const QRectF& Cell, int Number) {
        DrawButton(P, Cell, Sign::None, "", State);
        const TextStyle Style{.Size = 13,
                              .Kind = Weight::Bold,
                              .Colour = QColor(State == ButtonState::Lit ? "#3a2404" : "#173124"),
                              .Shadow = false};
        TextStyle Small = Style;
        Small.Size = 12;
        Small.Kind = Weight::Regular;
        const QRectF Face = Cell.adjusted(3.5, 0, 0, -3.5);
        DrawText(P, QRectF(Face.x(), Face.y() + 1.5, Face.width(), 15), Groups[Number].Numbers,
                 Style);
        DrawText(P, QRectF(Face.x(), Face.y() + 15.5, Face.width(), 15), Groups[Number].Tiles,
                 Small);
    });
}

void AddButtons(FormPictures& To)
{
    for (const ButtonRow& Row : Buttons)
        AddForm(To, Row.Element, Row.On, [&](QPainter& P, const QRectF& Box) {
            DrawButton(P, Box, Row.Drawn, Row.Caption, Row.State, Row.Place);
        });
    AddGroups(To, "clpButGroupOff", ButtonState::Rest);
    AddGroups(To, "clpButGroupOn", ButtonState::Lit);
    for (const bool On : {false, true}) {
        const QString Index = On ? "(1)" : "(0)";
        AddForm(To, "imgGreenLight" + Index, MainSheet,
                [&](QPainter& P, const QRectF& Box) { DrawLamp(P, Box, On); });
        AddForm(To, "imgOption" + Index, StockSheet,
                [&](QPainter& P, const QRectF& Box) { DrawOptionBall(P, Box, On); });
        AddForm(To, "imgOptGame" + Index, StockSheet,
                [&](QPainter& P, const QRectF& Box) { DrawOptionBall(P, Box, On); });
        AddForm(To, "imgButScores" + Index, StockSheet,
                [&](QPainter& P, const QRectF& Box) { DrawOptionBall(P, Box, On); });
    }
}
