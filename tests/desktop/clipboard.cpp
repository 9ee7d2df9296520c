// clipboard.cpp: holds its argument on the display's clipboard until it is killed.
#include <QClipboard>
#include <QGuiApplication>

int main(int Count, char** Arguments)
{
    const QGuiApplication Program(Count, Arguments);
    if (Count != 2) return 2;
    QGuiApplication::clipboard()->setText(QString::fromUtf8(Arguments[1]));
    return QGuiApplication::exec();
}
