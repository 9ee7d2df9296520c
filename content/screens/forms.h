// forms.h: the pictures that belong to the screens' own elements, and the files they go into.
#pragma once

#include "kit.h"
#include "places.h"

#include <functional>

// Pictures are gathered in sheets by the time when they are needed: a sheet is read as a whole.
enum Sheet {
    MainSheet = 1,
    MenuSheet,
    ExitSheet,
    EndSheet,
    NoMovesSheet,
    WonSheet,
    SplashSheet,
    StockSheet, // option balls and group buttons, on several screens
    OptionsSheet,
    ChooserSheet,
    RecordsSheet,
    HelpSheet,
    LastSheet = HelpSheet
};

struct FormPicture {
    QString Name; // of the element
    Sheet On;
    QImage Image;
};
using FormPictures = std::vector<FormPicture>;
using Drawing = std::function<void(QPainter& P, const QRectF& Box)>; // Box starts at 0, 0

// Makes the picture of an element in the size that the table gives it.
void AddForm(FormPictures& To, const QString& Element, Sheet On, const Drawing& Draw);
// The same for every cell of a picture store; Draw gets the cell's number too.
void AddStore(FormPictures& To, const QString& Store, Sheet On,
              const std::function<void(QPainter& P, const QRectF& Cell, int Number)>& Draw);

void AddBar(FormPictures& To);   // forms_bar.cpp: the control bar, its panels and the board's top
void AddNotes(FormPictures& To); // forms_notes.cpp: notes and digits
void DrawNoteCell(QPainter& P, const QRectF& Cell, int Number);
void DrawLedDigit(QPainter& P, const QRectF& Cell, int Number); // 0 blank, d + 1 the digit d
void AddBoxes(FormPictures& To);                                // forms_boxes.cpp: menu and boxes
void AddButtons(FormPictures& To); // forms_buttons.cpp: every button of every screen
void AddScreens(FormPictures& To); // forms_screens.cpp: other pictures of the full-size screens
void AddSplash(FormPictures& To);  // forms_splash.cpp: logo and title
void DrawTitleScene(QPainter& P, const QRectF& Box); // title.cpp: what stands on the title

// sheets.cpp: packs the pictures and writes DATA/FM0000 and the sheets below Folder.
void WriteSheets(const FormPictures& Pictures, const QString& Folder);

// A tile with the emblem of the game; Tiers is the number of its roofs. forms_splash.cpp
void DrawEmblemTile(QPainter& P, const QRectF& Box, int Tiers);

// Writes a picture of 1024 by 768, and beside it File@2 of twice the size for finer displays.
void WriteFullScreen(const QString& File, const std::function<void(QPainter&)>& Draw);

// backgrounds.cpp, help_pages.cpp, forms_splash.cpp
void WriteBackgrounds(const QString& Folder); // DATA/EN0001 .. EN0005
// DATA/HP0001 .. HP0005; tiles and boards on them are read from GameFolder, where their makers put
// them.
void WriteHelpPages(const QString& Folder, const QString& GameFolder);
void WriteIcons(const QString& Folder); // ICON/16.png .. ICON/512.png
