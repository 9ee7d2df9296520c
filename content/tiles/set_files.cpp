// set_files.cpp: reading sets/NN-name.txt
//
//   Fish                          the set's name
//   body sand                     its body, ivory when left out
//   sample 7                      the face for the sample sheet, 1 when left out
//   Clownfish | fish | c1=#ff7d1e c2=#ffffff pat=bands:3
//
// Lines that begin with "# " are comments.

#include "tiles.h"

#include <QDir>
#include <QFile>

static Recipe ReadRecipe(const QString& Text, const QString& Place)
{
    Recipe R;
    R.Place = Place;
    for (const QString& Word : Text.split(' ', Qt::SkipEmptyParts)) {
        const qsizetype Equals = Word.indexOf('=');
        if (Equals > 0)
            R.Values[Word.left(Equals)] = Word.mid(Equals + 1);
        else if (R.Source.isEmpty())
            R.Source = Word;
        else
            R.Values[Word] = "1";
    }
    return R;
}

static Face ReadFace(const QString& Line, const QString& Place)
{
    const QStringList Parts = Line.split('|');
    if (Parts.size() != 3) FatalError(Place + ": want \"label | kind | recipe\"");
    Face F{Parts[0].trimmed(), Parts[1].trimmed(), ReadRecipe(Parts[2].trimmed(), Place)};
    if (F.Label.isEmpty() || F.Kind.isEmpty()) FatalError(Place + ": label and kind must be told");
    return F;
}

TileSet ReadTileSet(int Number)
{
    const QDir Folder(SETS_DIR);
    const QString Pattern = QString("%1-*.txt").arg(Number, 2, 10, QChar('0'));
    const QStringList Names = Folder.entryList({Pattern}, QDir::Files);
    if (Names.size() != 1) FatalError(Folder.filePath(Pattern) + ": want exactly one such file");
    QFile File(Folder.filePath(Names[0]));
    if (!File.open(QIODevice::ReadOnly)) FatalError("cannot read " + File.fileName());

    TileSet Set;
    int LineNumber = 0;
    for (const QString& Raw : QString::fromUtf8(File.readAll()).split('\n')) {
        const QString Line = Raw.trimmed();
        const QString Place = QString("%1:%2").arg(Names[0]).arg(++LineNumber);
        if (Line.isEmpty() || Line.startsWith("# ")) continue;
        if (Set.Name.isEmpty()) {
            Set.Name = Line;
        } else if (Line.startsWith("body ")) {
            Set.Body = FindBodyTint(Line.mid(5));
            if (!Set.Body) FatalError(Place + ": no body is called " + Line.mid(5));
        } else if (Line.startsWith("sample ")) {
            Set.Sample = Line.mid(7).toInt();
            if (Set.Sample < 1 || Set.Sample > FaceCount) FatalError(Place + ": sample 1 to 36");
        } else {
            Set.Faces.push_back(ReadFace(Line, Place));
        }
    }
    if (Set.Faces.size() != FaceCount)
        FatalError(QString("%1: %2 faces, want 36").arg(Names[0]).arg(Set.Faces.size()));
    return Set;
}

bool Has(const Recipe& R, const char* Key)
{
    return R.Values.contains(Key);
}

QString Text(const Recipe& R, const char* Key, const QString& Default)
{
    return R.Values.value(Key, Default);
}

double Number(const Recipe& R, const char* Key, double Default)
{
    if (!Has(R, Key)) return Default;
    bool Good = false;
    const double Value = Text(R, Key).toDouble(&Good);
    if (!Good) FatalError(R.Place + ": " + Key + " must be a number, not " + Text(R, Key));
    return Value;
}

int Whole(const Recipe& R, const char* Key, int Default)
{
    return static_cast<int>(Number(R, Key, Default));
}

static QColor ReadColour(const QString& Name, const Recipe& R, const char* Key)
{
    const QColor Value(Name);
    if (!Value.isValid()) FatalError(R.Place + ": " + Key + " must be a colour, not " + Name);
    return Value;
}

QColor Colour(const Recipe& R, const char* Key, const QColor& Default)
{
    return Has(R, Key) ? ReadColour(Text(R, Key), R, Key) : Default;
}

QStringList Words(const Recipe& R, const char* Key, const char* Between)
{
    return Text(R, Key).split(Between, Qt::SkipEmptyParts);
}

std::vector<QColor> Colours(const Recipe& R, const char* Key, const char* Default)
{
    std::vector<QColor> List;
    for (const QString& Name : Text(R, Key, Default).split(',', Qt::SkipEmptyParts))
        List.push_back(ReadColour(Name, R, Key));
    return List;
}
