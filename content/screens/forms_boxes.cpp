// forms_boxes.cpp: the menu and the boxes that stand over the dimmed board

#include "forms.h"

static void DrawSockets(QPainter& P, const QString& Panel)
{
    for (const Place& E : PlacesOn(Panel))
        if (E.Drawn && E.Base.startsWith("img") && !E.Base.endsWith("DIS")) DrawSocket(P, E.Box);
}

static void DrawMenu(QPainter& P, const QRectF& Box)
{
    DrawPanel(P, Box.adjusted(.5, .5, -.5, -.5), 11);
    DrawReliefScene(P, Box.adjusted(9, Box.height() - 70, -9, -9));
    DrawEmblem(P, QRectF(32, 18, 44, 42));
    DrawTitle(P, QRectF(70, 20, Box.width() - 100, 40), "Pagodas", 31);
    DrawSockets(P, "picMenu");
    DrawRule(P, 40, Box.width() - 40, BoxOf("lblxpack_Title").top() - 5);
}

static void DrawQuestion(QPainter& P, const QRectF& Box, const QString& Panel, Sign Drawn,
                         const QString& Title, const QString& Text)
{
    DrawPanel(P, Box.adjusted(.5, .5, -.5, -.5), 11);
    const QRectF Medal(26, 30, 76, 76);
    P.fillPath(
        Circle(Medal.center().x(), Medal.center().y(), 38),
        Linear(Medal.right(), Medal.top(), Medal.left(), Medal.bottom(), {IvoryLight, IvoryDark}));
    DrawGoldLine(P, Circle(Medal.center().x(), Medal.center().y(), 38), 2.2);
    DrawSign(P, Drawn, Medal.adjusted(17, 17, -17, -17));
    DrawTitle(P, QRectF(120, 24, Box.width() - 144, 40), Title, 25, Qt::AlignLeft);
    DrawParagraph(P, QRectF(121, 66, Box.width() - 146, 48), Text,
                  {.Size = 15, .Place = Qt::AlignLeft | Qt::AlignTop});
    DrawSockets(P, Panel);
}

static void DrawWonPanel(QPainter& P, const QRectF& Box)
{
    DrawPanel(P, Box.adjusted(.5, .5, -.5, -.5), 12);
    const QRectF Frame = BoxOf("imgGameWon").adjusted(-3, -3, 3, 3);
    P.fillRect(Frame, QColor(PlateDark));
    DrawGoldLine(P, Rounded(Frame.x(), Frame.y(), Frame.width(), Frame.height(), 1), 2.4);
}

static void DrawCongrats(QPainter& P, const QRectF& Box)
{
    DrawInset(P, Box, 6);
    DrawEmblem(P, QRectF(26, 14, 70, 76));
    DrawTitle(P, QRectF(116, 16, 440, 42), "Congratulations!", 31, Qt::AlignLeft);
    DrawText(P, QRectF(117, 60, 440, 24), "The board is cleared to the last tile.",
             {.Size = 16, .Place = Qt::AlignLeft | Qt::AlignVCenter});
    DrawSockets(P, "picCongrats");
}

static void DrawNewHigh(QPainter& P, const QRectF& Box)
{
    DrawInset(P, Box, 6);
    DrawSign(P, Sign::Scores, QRectF(24, 17, 66, 68),
             {.Gold = QColor("#e8bd4e"), .Ground = QColor("#fff0b0")});
    const QRectF Name = BoxOf("txtName");
    DrawTitle(P, QRectF(104, 14, 210, 34), "High score!", 25, Qt::AlignLeft);
    DrawParagraph(P, QRectF(105, 50, 196, 42), "Write your name for\nthe score table:",
                  {.Size = 14.5, .Place = Qt::AlignLeft | Qt::AlignTop}, 1.35);
    P.fillPath(Rounded(Name.x() - 4, Name.y() - 4, Name.width() + 8, Name.height() + 8, 4),
               QColor("#07140d"));
    P.fillRect(Name, QColor(IvoryLight));
    DrawGoldLine(P, Rounded(Name.x() - 4, Name.y() - 4, Name.width() + 8, Name.height() + 8, 4),
                 1.6);
    DrawSockets(P, "picNewHigh");
}

struct QuestionRow {
    const char* Panel;
    Sheet On;
    Sign Drawn;
    const char* Title;
    const char* Text;
};
static const QuestionRow Questions[] = {
    {"picExit", ExitSheet, Sign::Exit, "Leave Pagodas?", "A game under way counts as given up."},
    {"picEnd", EndSheet, Sign::End, "End this game?",
     "It counts as given up and\nenters no score table."},
    {"picNoMoves", NoMovesSheet, Sign::Sleep, "No moves left",
     "Nothing more can be played here.\nThe game is lost."},
    {"picNoMovesMix", NoMovesSheet, Sign::Mix, "No moves left",
     "No pair is free. MIX stirs the tiles,\nEND gives the game up."},
};

void AddBoxes(FormPictures& To)
{
    AddForm(To, "picMenu", MenuSheet, DrawMenu);
    for (const QuestionRow& Row : Questions)
        AddForm(To, Row.Panel, Row.On, [&](QPainter& P, const QRectF& Box) {
            DrawQuestion(P, Box, Row.Panel, Row.Drawn, Row.Title, Row.Text);
        });
    AddForm(To, "picGameWon", WonSheet, DrawWonPanel);
    AddForm(To, "picCongrats", WonSheet, DrawCongrats);
    AddForm(To, "picNewHigh", WonSheet, DrawNewHigh);
}
