// \SCOR\Scores-A and its fellows: ten places for each game type and layout of one layout list.
#include "records/fields.h"
#include "records/records.h"

constexpr int FiledTypes = 6; // 4 to 6 stay empty
constexpr int Layouts = 120, Places = 10;
constexpr int EntrySize = 12 + 2 + 1 + 1 + 2;
constexpr int ScoresSize = FiledTypes * Layouts * Places * EntrySize;
static_assert(ScoresSize == 129600);

static void WalkEntry(RecordFile& File, int Offset, ScoreEntry& Entry)
{
    FieldText(File, Offset, Entry.Name, 12);
    // Below 0 stands no score: a game that made no point would beat it.
    Field16(File, Offset + 12, Entry.Score, {0, 32767});
    FieldByte(File, Offset + 14, Entry.Day);
    FieldByte(File, Offset + 15, Entry.Month);
    Field16(File, Offset + 16, Entry.Year);
}

static void WalkScores(RecordFile& File)
{
    int Offset = 0;
    for (int Type = 1; Type <= FiledTypes; ++Type)
        for (int Layout = 1; Layout <= Layouts; ++Layout)
            for (int Place = 1; Place <= Places; ++Place) {
                WalkEntry(File, Offset, GameState.ScoreTable(Type, Layout, Place));
                Offset += EntrySize;
            }
}

std::string ScoresFile()
{
    const std::string Path = "\\SCOR\\Scores-";
    if (GameState.LayoutGroup < 3) return Path + static_cast<char>('A' + GameState.LayoutGroup);
    const std::string Number = "00" + std::to_string(GameState.LayoutGroup - 2);
    return Path + Number.substr(Number.size() - 2);
}

void LoadScores()
{
    RecordFile File = ReadRecordFile(ScoresFile(), ScoresSize);
    GameState.ScoreTable.Clear(); // the spill row of another list goes too
    WalkScores(File);
    for (ScoreEntry& Entry : GameState.ScoreTable.Cells) Entry.Name = LowerCase(Entry.Name);
}

void SaveScores()
{
    RecordFile File = NewRecordFile(ScoresSize);
    WalkScores(File);
    SaveRecordFile(ScoresFile(), File, "high scores");
}

void ScoreRankFor(int Score)
{
    GameState.ScoreRank = 0;
    for (int I = 1; I <= Places; ++I) {
        if (Score <= GameState.ScoreTable(GameState.GameType, GameState.LayoutNumber, I).Score)
            continue;
        GameState.ScoreRank = I;
        return;
    }
}

void InsertScore()
{
    const auto Entry = [](int Place) -> ScoreEntry& {
        return GameState.ScoreTable(GameState.GameType, GameState.LayoutNumber, Place);
    };
    for (int I = 1; I <= Places; ++I) {
        if (Entry(I).Score >= GameState.Score) continue;
        for (int J = Places + 1; J >= I + 1; --J) Entry(J) = Entry(J - 1);
        const DateTime Now = Platform.Now();
        Entry(I) = {GameState.LastName, GameState.Score, Now.Day, Now.Month, Now.Year};
        break;
    }
    GameState.NewHighRank = GameState.ScoreRank;
    GameState.ScoreRank = 0;
    GameState.TypedEntry = 0;
}

std::string MonthText(int Month)
{
    return Month >= 1 && Month <= 12 ? GameState.MonthName(Month) : "";
}
