// make_screens.cpp: writes the pictures of the screens
//
//   make-screens OUTDIR forms         the pictures of the elements, and the icons
//   make-screens OUTDIR backgrounds   the grounds of the full-size screens
//   make-screens OUTDIR help GAMEDIR  the help pages, with the tiles and layouts of GAMEDIR

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
    const QString Work = Given.value(2);
    if (Work == "forms" && Given.size() == 3) {
        WriteForms(Given[1]);
        WriteIcons(Given[1]);
    } else if (Work == "backgrounds" && Given.size() == 3) {
        WriteBackgrounds(Given[1]);
    } else if (Work == "help" && Given.size() == 4) {
        WriteHelpPages(Given[1], Given[3]);
    } else {
        FatalError("usage: make-screens OUTDIR forms | backgrounds | help GAMEDIR");
    }
}
