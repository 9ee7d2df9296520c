#include "desktop/desktop.h"
#include "frame/files.h"
#include "frame/frame.h"

#include <QApplication>

int main(int Count, char** Arguments)
{
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
