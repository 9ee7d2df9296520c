#include "desktop/desktop.h"
#include "frame/files.h"
#include "frame/frame.h"

#include <QApplication>

#include <malloc.h>

constexpr int PictureBytes = 256 * 1024; // what is larger is a picture

// What the desktop puts over the game - help balloons, open lists, the box of a fatal error - in
// the colours of the screens.
constexpr const char* OverTheGame =
    "QToolTip { color: #2a2018; background: #f3e4bd; border: 1px solid #8a6420; padding: 3px 2px;"
    "  font: 14px \"DejaVu Sans\"; }"
    "QComboBox QAbstractItemView { color: #1e1a10; background: #f8f0d8; border: 1px solid #6a4a10;"
    "  selection-color: #fff8e0; selection-background-color: #2f6b4e; outline: 0; }"
    "QScrollBar:vertical { background: #e4d5a8; width: 14px; }"
    "QScrollBar::handle:vertical { background: #b08a36; border: 1px solid #6a4a10;"
    "  border-radius: 4px; min-height: 28px; margin: 1px; }"
    "QScrollBar::add-line, QScrollBar::sub-line { height: 0; }"
    "QScrollBar::add-page, QScrollBar::sub-page { background: none; }"
    "QMessageBox { background: #1a4032; }"
    "QMessageBox QLabel { color: #fff6dc; font: 15px \"DejaVu Sans\"; }"
    "QMessageBox QPushButton { color: #173124; background: #f6eedb; border: 1px solid #5b4a28;"
    "  border-bottom: 4px solid #3f8f63; border-left: 4px solid #3f8f63; border-radius: 4px;"
    "  min-width: 96px; padding: 6px 10px; font: bold 14px \"DejaVu Sans\"; }"
    "QMessageBox QPushButton:pressed { background: #f7cf57; }";

int main(int Count, char** Arguments)
{
    // A picture that is dropped goes back to the system at once and leaves no hole.
    mallopt(M_MMAP_THRESHOLD, PictureBytes);
    QApplication Application(Count, Arguments);
    QApplication::setApplicationName("Pagodas");
    Application.setStyleSheet(OverTheGame);
    GameDirectory = QApplication::applicationDirPath().toStdString();
    FillPlatform();
    InitElements();
    SetAllHandlers();
    OpenGameWindow();
    const int Status = QApplication::exec();
    StopSound();
    return Status;
}
