// show_views.cpp: writes every view of the program as a picture, to be looked at side by side.
//
//   show-views OUTDIR [RATIO [NAME ...]]
#include "tests/screens/views.h"

#include <QGuiApplication>

#include <cstdio>

int main(int Count, char** Arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication Application(Count, Arguments);
    const QStringList Given = Application.arguments();
    if (Given.size() < 2) {
        std::fprintf(stderr, "usage: show-views OUTDIR [RATIO [NAME ...]]\n");
        return 2;
    }
    LoadScreenFonts();
    const double Ratio = Given.value(2, "1").toDouble();
    for (const View& One : AllViews()) {
        if (Given.size() > 3 && !Given.mid(3).contains(One.Name)) continue;
        Enter(One);
        const QString File = Given[1] + "/" + One.Name + ".png";
        if (PaintedScreen(Ratio).save(File)) continue;
        std::fprintf(stderr, "cannot write %s\n", qPrintable(File));
        return 1;
    }
}
