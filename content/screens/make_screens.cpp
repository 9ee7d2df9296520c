// make_screens.cpp: writes the pictures of the screens
//
//   make-screens OUTDIR forms|backgrounds|help|icons ...

#include "forms.h"

#include <QGuiApplication>

static void WriteForms(const QString& Folder)
{
    FormPictures Pictures;
    AddBar(Pictures);
    AddNotes(Pictures);
    AddButtons(Pictures);
    AddBoxes(Pictures);
    AddScreens(Pictures);
    AddSplash(Pictures);
    for (const Place& E : AllPlaces()) {
        if (!E.Drawn) continue;
        const auto Made = [&](const FormPicture& F) { return F.Name == E.Name; };
        if (std::none_of(Pictures.begin(), Pictures.end(), Made))
            FatalError(E.Name + " has no picture");
    }
    WriteSheets(Pictures, Folder);
}

int main(int ArgumentCount, char** Arguments)
{
    QGuiApplication App(ArgumentCount, Arguments);
    const QStringList Given = App.arguments();
    if (Given.size() < 3) FatalError("usage: make-screens OUTDIR forms|backgrounds|help|icons ...");
    for (const QString& Work : Given.mid(2)) {
        if (Work == "forms")
            WriteForms(Given[1]);
        else
            FatalError("make-screens does not know \"" + Work + "\"");
    }
}
