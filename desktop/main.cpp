#include "desktop/desktop.h"
#include "frame/files.h"
#include "frame/frame.h"

#include <QApplication>

#include <malloc.h>

constexpr int PictureBytes = 256 * 1024; // what is larger is a picture

int main(int Count, char** Arguments)
{
    // A picture that is dropped goes back to the system at once and leaves no hole.
    mallopt(M_MMAP_THRESHOLD, PictureBytes);
    QApplication Application(Count, Arguments);
    QApplication::setApplicationName("Pagodas");
    GameDirectory = QApplication::applicationDirPath().toStdString();
    FillPlatform();
    InitElements();
    SetAllHandlers();
    OpenGameWindow();
    const int Status = QApplication::exec();
    StopSound();
    return Status;
}
