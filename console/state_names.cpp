#include "console/console.h"

#include "frame/elements.h"
#include "frame/frame.h"
#include "records/records.h"
#include "words/words.h"

#include <functional>
#include <limits>
#include <map>

// A variable of the shared state: one value, or the cells of an array in their order.
struct StateVariable {
    std::vector<int> First, Last; // bounds of an array
    std::function<std::string(int Cell, const std::string& Field)> Get;
    std::function<std::string(int Cell, const std::string& Field, const Argument& Value)> Set;
    // First and last cell in use, where a count says how many.
    std::function<std::pair<int, int>()> InUse;
};

static std::map<std::string, StateVariable> Variables;

// --- one value ---

template <typename T> static std::string ValueText(const Whole<T>& Value)
{
    return std::to_string(Value.Value);
}
static std::string ValueText(const std::uint8_t& Value)
{
    return std::to_string(Value);
}
static std::string ValueText(const std::string& Value)
{
    return QuotedText(Value);
}
static std::string ValueText(const std::array<char, BlockSize>& Value)
{
    return QuotedText(std::string(Value.begin(), Value.end()));
}
static std::string ValueText(const Colour& Value)
{
    return QuotedText(std::to_string(Value.Red) + "," + std::to_string(Value.Green) + "," +
                      std::to_string(Value.Blue));
}

template <typename Number>
static std::string SetNumber(Number& Into, const Argument& Value, long long Low, long long High)
{
    const std::optional<int> New = WholeNumber(Value.Text);
    if (Value.Quoted || !New) return "error: " + Value.Text + " is no whole number";
    if (*New < Low || *New > High) return "error: " + Value.Text + " does not fit";
    Into = static_cast<Number>(*New);
    return "ok";
}
template <typename T> static std::string SetValue(Whole<T>& Into, const Argument& Value)
{
    return SetNumber(Into, Value, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
}
static std::string SetValue(std::uint8_t& Into, const Argument& Value)
{
    return SetNumber(Into, Value, 0, 255);
}
static std::string SetValue(std::string& Into, const Argument& Value)
{
    if (!Value.Quoted) return "error: a text stands in quotes";
    Into = Value.Text;
    return "ok";
}
static std::string SetValue(std::array<char, BlockSize>&, const Argument&)
{
    return "error: the block cannot be set";
}
static std::string SetValue(Colour&, const Argument&)
{
    return "error: a colour cannot be set";
}

// --- records with fields ---

constexpr const char* NoField = "error: no such field";

template <typename T, typename Does>
static std::string WithField(T& Value, const std::string& Field, Does Do)
{
    if (Field.empty()) return Do(Value);
    return NoField;
}
template <typename Does>
static std::string WithField(ScoreEntry& Entry, const std::string& Field, Does Do)
{
    if (Field == "Name") return Do(Entry.Name);
    if (Field == "Score") return Do(Entry.Score);
    if (Field == "Day") return Do(Entry.Day);
    if (Field == "Month") return Do(Entry.Month);
    if (Field == "Year") return Do(Entry.Year);
    return NoField;
}
template <typename Does>
static std::string WithField(HistoryRow& Row, const std::string& Field, Does Do)
{
    if (Field == "Name") return Do(Row.Name);
    if (Field == "Place") return Do(Row.Place);
    if (Field == "LayoutIndex") return Do(Row.LayoutIndex);
    if (Field == "Score") return Do(Row.Score);
    if (Field == "Date") return Do(Row.Date);
    return NoField;
}

// --- the register ---

template <typename T> static void Register(const std::string& Name, T& Value)
{
    StateVariable& Variable = Variables[Name];
    Variable.Get = [&Value](int, const std::string& Field) {
        return Field.empty() ? ValueText(Value) : NoField;
    };
    Variable.Set = [&Value](int, const std::string& Field, const Argument& New) {
        return Field.empty() ? SetValue(Value, New) : NoField;
    };
}

template <typename T, typename... Spans>
static void Register(const std::string& Name, Table<T, Spans...>& Cells,
                     std::function<std::pair<int, int>()> InUse = nullptr)
{
    StateVariable& Variable = Variables[Name];
    Variable.First.assign(Cells.First.begin(), Cells.First.end());
    Variable.Last.assign(Cells.Last.begin(), Cells.Last.end());
    Variable.InUse = std::move(InUse);
    Variable.Get = [&Cells](int Cell, const std::string& Field) {
        return WithField(Cells.Cells[Cell], Field, [](auto& Value) { return ValueText(Value); });
    };
    Variable.Set = [&Cells](int Cell, const std::string& Field, const Argument& New) {
        return WithField(Cells.Cells[Cell], Field,
                         [&](auto& Value) { return SetValue(Value, New); });
    };
}

// A list of texts, counted from 1; all its cells are in use.
static void Register(const std::string& Name, std::vector<std::string>& Texts)
{
    StateVariable& Variable = Variables[Name];
    Variable.First = {1};
    Variable.Last = {std::numeric_limits<int>::max()};
    Variable.InUse = [&Texts] { return std::pair<int, int>(1, static_cast<int>(Texts.size())); };
    Variable.Get = [&Texts](int Cell, const std::string& Field) {
        if (Cell >= static_cast<int>(Texts.size())) return std::string("error: no such cell");
        return Field.empty() ? ValueText(Texts[Cell]) : NoField;
    };
    Variable.Set = [](int, const std::string&, const Argument&) {
        return std::string("error: the list cannot be set");
    };
}

// Cells From to a count, both included.
static std::function<std::pair<int, int>()> UpTo(int From, const I16& Count)
{
    return [From, &Count] { return std::pair<int, int>(From, Count); };
}

static void RegisterAll()
{
    GameStateRecord& S = GameState;
#define VALUE(Name) Register(#Name, S.Name)
#define CELLS(Name, ...) Register(#Name, S.Name, __VA_ARGS__)
    VALUE(GameType);
    VALUE(LayoutGroup);
    VALUE(LayoutNumber);
    VALUE(RandomLayoutMode);
    VALUE(RandomBlockChosen);
    VALUE(LayoutListCount);
    VALUE(LayoutSetCursor);
    CELLS(LayoutSets, UpTo(1, S.LayoutListCount));
    VALUE(LayoutName);
    VALUE(LayoutOffset);
    VALUE(LayoutWon);
    VALUE(LayoutLost);
    VALUE(LayoutData72);
    VALUE(LayoutData144);
    VALUE(LayoutData216);
    VALUE(LayoutData288);
    VALUE(LayoutPackData);
    VALUE(TileOrder);
    VALUE(PlaceCursor);
    VALUE(TilesLeft);
    VALUE(StartTileTags);
    VALUE(BoardMap);
    VALUE(GameRunning);
    VALUE(WaitForStart);
    VALUE(DisplayMode);
    VALUE(StandardDpi);
    VALUE(ScreenWidth);
    VALUE(ScreenHeight);
    VALUE(RestoreDisplayPending);
    VALUE(WindowLeft);
    VALUE(WindowTop);
    VALUE(MixCount);
    VALUE(UndoCount);
    VALUE(PairCount);
    VALUE(PeekCount);
    VALUE(PauseCount);
    VALUE(PushCount);
    VALUE(SpareCount);
    VALUE(Score);
    VALUE(AgilityTime);
    VALUE(PauseTicks);
    VALUE(UndoDepth);
    CELLS(UndoTileA, UpTo(1, S.UndoDepth));
    CELLS(UndoAX, UpTo(1, S.UndoDepth));
    CELLS(UndoAY, UpTo(1, S.UndoDepth));
    CELLS(UndoAZ, UpTo(1, S.UndoDepth));
    CELLS(UndoTileB, UpTo(1, S.UndoDepth));
    CELLS(UndoBX, UpTo(1, S.UndoDepth));
    CELLS(UndoBY, UpTo(1, S.UndoDepth));
    CELLS(UndoBZ, UpTo(1, S.UndoDepth));
    VALUE(RecentFaces);
    VALUE(TileSelected);
    VALUE(SelectedTile);
    VALUE(SelectedFace);
    VALUE(HoverTile);
    VALUE(NoteShowing);
    VALUE(PairMark);
    CELLS(PairMarked, UpTo(0, S.PairMarked(0)));
    VALUE(PeekMode);
    VALUE(PushMode);
    CELLS(MixList, [] {
        int Tiles = 0;
        while (Tiles < TileCount && GameState.MixList(Tiles + 1) != 0) ++Tiles;
        return std::pair<int, int>(1, Tiles);
    });
    CELLS(FreeTiles, UpTo(1, S.FreeCount));
    CELLS(FreeFaces, UpTo(1, S.FreeCount));
    VALUE(FreeCount);
    VALUE(FaceFirst);
    VALUE(FaceSecond);
    CELLS(OpenPairA, UpTo(1, S.MoveCount));
    CELLS(OpenPairB, UpTo(1, S.MoveCount));
    VALUE(MoveCount);
    VALUE(HintCursor);
    VALUE(ScoreRank);
    VALUE(EndThenChooser);
    VALUE(TypedEntry);
    VALUE(LastName);
    CELLS(WordTiles, UpTo(0, S.WordTiles(0)));
    VALUE(WordScore);
    VALUE(FaceLetter);
    VALUE(PushFace);
    VALUE(MonthName);
    VALUE(WordPoints);
    VALUE(BannedWords);
    VALUE(MasterPoints);
    VALUE(PlayerColour);
    VALUE(TileSetCount);
    VALUE(BackdropCount);
    VALUE(MusicCount);
    VALUE(TileSetNames);
    VALUE(BackdropNames);
    CELLS(PackFiles, [] { return std::pair<int, int>(1, GameState.LayoutListCount - 3); });
    VALUE(MusicOn);
    VALUE(SoundLevel);
    VALUE(HelpBalloons);
    VALUE(TileSetFixed);
    VALUE(TileSetRotate);
    VALUE(TileSetRandom);
    VALUE(BackdropFixed);
    VALUE(BackdropRotate);
    VALUE(BackdropRandom);
    VALUE(CurrentTrack);
    VALUE(TileGroupShown);
    VALUE(BackdropGroupShown);
    VALUE(TilePageCursor);
    VALUE(HistoryView);
    VALUE(GraphType);
    VALUE(ProfileSizeClass);
    VALUE(PlayerNames);
    VALUE(MusicReady);
    VALUE(MusicPlaying);
    VALUE(ScoreTable);
    VALUE(History);
    VALUE(ButtonDown);
    VALUE(ScoresLayout);
    VALUE(ScoresGameType);
    VALUE(NewHighRank);
    VALUE(HistoryGameType);
    VALUE(HistoryPage);
    VALUE(HistoryCleared);
    VALUE(ProfileGameType);
    VALUE(SavedPlayerNames);
    VALUE(PreviousPlayerName);
    VALUE(MasterScore);
    VALUE(ChooserGroup);
    VALUE(OptGameType);
    VALUE(OptMusicOn);
    VALUE(OptSoundLevel);
    VALUE(OptTileSet);
    VALUE(OptTileCycle);
    VALUE(OptTileRandom);
    VALUE(OptBackdrop);
    VALUE(OptBackdropCycle);
    VALUE(OptBackdropRandom);
    VALUE(OptHelpBalloons);
    VALUE(TileGroupKept);
    VALUE(BackdropGroupKept);
    VALUE(SampleShown);
#undef VALUE
#undef CELLS
    DictionaryRecord& D = DictionaryState;
#define VALUE(Name) Register(#Name, D.Name)
    VALUE(IsOpen);
    VALUE(BlockCount);
    VALUE(Low);
    VALUE(High);
    VALUE(Middle);
    VALUE(Block);
    VALUE(Target);
    VALUE(Current);
    VALUE(Previous);
    VALUE(IgnoreDigits);
    VALUE(SkipList);
    VALUE(Suggestions);
    VALUE(FileName);
    VALUE(WordList);
    VALUE(IsSuggesting);
    VALUE(AllSuggestions);
#undef VALUE
    Register("RandomGroupMarks", S.RandomBlockChosen); // the chooser's word for the same array
    StateVariable& Index = Variables["LayoutIndex"];
    Index.Get = [](int, const std::string& Field) {
        return Field.empty() ? std::to_string(LayoutIndex()) : NoField;
    };
    Index.Set = [](int, const std::string&, const Argument&) {
        return std::string("error: LayoutIndex is worked out and cannot be set");
    };
    Register("GraphColour", GraphColour); // what the profile has drawn, by layout and place
}

static const StateVariable* FindVariable(const std::string& Name)
{
    if (Variables.empty()) RegisterAll();
    const auto Found = Variables.find(Name);
    return Found == Variables.end() ? nullptr : &Found->second;
}

// The cell of the indexes, or nothing when they do not fit the array.
static std::optional<int> CellOf(const StateVariable& Variable, const std::vector<int>& Indexes)
{
    if (Indexes.size() != Variable.First.size()) return std::nullopt;
    int Cell = 0;
    for (std::size_t D = 0; D < Indexes.size(); ++D) {
        if (Indexes[D] < Variable.First[D] || Indexes[D] > Variable.Last[D]) return std::nullopt;
        Cell = Cell * (Variable.Last[D] - Variable.First[D] + 1) + Indexes[D] - Variable.First[D];
    }
    return Cell;
}

static std::string ListCells(const StateVariable& Variable, const std::string& Field)
{
    int First = 0, Last = 0, Count = 1;
    for (std::size_t D = 0; D < Variable.First.size(); ++D)
        Count *= Variable.Last[D] - Variable.First[D] + 1;
    Last = Count - 1;
    if (Variable.InUse) {
        First = Variable.InUse().first - Variable.First[0];
        Last = Variable.InUse().second - Variable.First[0];
    }
    std::string Text;
    for (int Cell = First; Cell <= Last && Cell < Count; ++Cell) {
        const std::string Value = Variable.Get(Cell, Field);
        if (Value == NoField) return NoField;
        Text += (Cell == First ? "" : " ") + Value;
    }
    return Text;
}

std::string StateValue(const std::string& Text)
{
    const std::optional<IndexedName> Name = ParseName(Text);
    const StateVariable* Variable = Name ? FindVariable(Name->Name) : nullptr;
    if (!Variable) return "error: no variable " + Text;
    if (!Variable->First.empty() && Name->Indexes.empty()) return ListCells(*Variable, Name->Field);
    const std::optional<int> Cell = CellOf(*Variable, Name->Indexes);
    if (!Cell) return "error: index outside the array in " + Text;
    return Variable->Get(*Cell, Name->Field);
}

std::string SetStateValue(const std::string& Text, const Argument& Value)
{
    const std::optional<IndexedName> Name = ParseName(Text);
    const StateVariable* Variable = Name ? FindVariable(Name->Name) : nullptr;
    if (!Variable) return "error: no variable " + Text;
    const std::optional<int> Cell = CellOf(*Variable, Name->Indexes);
    if (!Cell) return "error: index outside the array in " + Text;
    return Variable->Set(*Cell, Name->Field, Value);
}
