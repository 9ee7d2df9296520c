#include "console/console.h"

#include "board/board.h"
#include "frame/files.h"
#include "media/media.h"
#include "records/records.h"
#include "screens/screens.h"
#include "words/word_play.h"
#include "words/words.h"

#include <functional>
#include <map>

using Operation = std::function<std::string(const std::vector<Argument>&)>;

// --- arguments of the console as arguments of the rules ---

struct BadArgument {
    std::string Text;
};

template <typename T> struct Given;
template <> struct Given<int> {
    int Value;
    explicit Given(const Argument& A)
    {
        const std::optional<int> Number = WholeNumber(A.Text);
        if (A.Quoted || !Number) throw BadArgument{A.Text + " is no whole number"};
        Value = *Number;
    }
};
template <> struct Given<bool> : Given<int> {
    using Given<int>::Given;
};
template <> struct Given<I16&> {
    I16 Value;
    explicit Given(const Argument& A) : Value(Given<int>(A).Value) {}
};
template <> struct Given<std::string> {
    std::string Value;
    explicit Given(const Argument& A) : Value(A.Text)
    {
        // A number becomes its digits where a rule takes a text, as the place of RecordGame.
        if (!A.Quoted && !WholeNumber(A.Text)) throw BadArgument{"a text stands in quotes"};
    }
};
template <> struct Given<const std::string&> : Given<std::string> {
    using Given<std::string>::Given;
};
template <> struct Given<std::string&> : Given<std::string> {
    using Given<std::string>::Given;
};
template <> struct Given<std::string_view> : Given<std::string> {
    using Given<std::string>::Given;
};
template <> struct Given<const Element&> {
    const Element& Value;
    explicit Given(const Argument& A) : Value(Find(A.Text)) {}
    static const Element& Find(const std::string& Name)
    {
        const Element* E = ElementByName(Name);
        if (!E) throw BadArgument{"no element " + Name};
        return *E;
    }
};

static std::string Answer(int Value)
{
    return std::to_string(Value);
}
static std::string Answer(bool Value)
{
    return Value ? "1" : "0";
}
static std::string Answer(double Value)
{
    return NumberText(Value);
}
static std::string Answer(const std::string& Value)
{
    return QuotedText(Value);
}

template <typename Result, typename... Parameters, std::size_t... I>
static std::string Run(Result (*Rule)(Parameters...), const std::vector<Argument>& Arguments,
                       std::index_sequence<I...>)
{
    if (Arguments.size() != sizeof...(Parameters))
        return "error: takes " + std::to_string(sizeof...(Parameters)) + " arguments";
    std::tuple<Given<Parameters>...> Values{Given<Parameters>(Arguments[I])...};
    if constexpr (std::is_void_v<Result>) {
        Rule(static_cast<Parameters>(std::get<I>(Values).Value)...);
        return "ok";
    } else {
        return Answer(Rule(static_cast<Parameters>(std::get<I>(Values).Value)...));
    }
}

template <typename Result, typename... Parameters>
static Operation Call(Result (*Rule)(Parameters...))
{
    return [Rule](const std::vector<Argument>& Arguments) {
        return Run(Rule, Arguments, std::index_sequence_for<Parameters...>());
    };
}

static void PlaceRun(int X, int Y, int Z, int Count)
{
    I16 Column = X;
    PlaceTileRun(Column, Y, Z, Count);
}

// The file to open may be named as the game names it, "\DATA\AS0001".
static int RunDictionaryCommand(const std::string& Word, int Code)
{
    std::int16_t Answered = I16(Code).Value;
    DictionaryCommand(Code == OpenFile && Word.starts_with('\\') ? HostPath(Word) : Word, Answered);
    return Answered;
}

static int Suggest(const std::string& Word, int, bool All)
{
    std::int16_t Result = 0;
    FindSuggestions(Word, Result, All);
    return Result;
}

static const std::map<std::string, Operation>& Operations()
{
#define RULE(Name)                                                                                 \
    {                                                                                              \
#Name, Call(Name)                                                                          \
    }
    static const std::map<std::string, Operation> All = {
        // frame
        RULE(LayoutIndex),
        RULE(LayoutBlock),
        RULE(LayoutTileCount),
        RULE(BuildTables),
        RULE(Rnd),
        RULE(Randomize),
        RULE(RandomBetween),
        RULE(SplashLoad),
        RULE(StartGame),
        RULE(SetWindowMode),
        RULE(MinimizeGame),
        RULE(ShutdownDisplay),
        RULE(ShowTextNote),
        RULE(HideTextNote),
        RULE(BringToFront),
        RULE(SendToBack),
        // board
        RULE(LoadLayoutNames),
        RULE(LoadLayoutGeometry),
        {"PlaceTileRun", Call(PlaceRun)},
        RULE(PlaceLayout),
        RULE(DrawRandomLayoutNumber),
        RULE(NewGame),
        RULE(InitTiles),
        RULE(ShuffleTiles),
        RULE(ShowDealtTiles),
        RULE(HideAllTiles),
        RULE(TileFace),
        RULE(TileX),
        RULE(TileY),
        RULE(TileZ),
        RULE(SetTileState),
        RULE(ShowNote),
        RULE(ShowOpenPairCount),
        RULE(ShowClock),
        RULE(ShowGamePanel),
        RULE(ClearHover),
        RULE(IsBlocked),
        RULE(ScanOpenPairs),
        RULE(StreakBonus),
        RULE(RefreshPanel),
        RULE(DisablePanel),
        RULE(RefreshLights),
        RULE(MixTiles),
        RULE(ShowNoMoves),
        RULE(SetClock),
        // words
        RULE(AddLetter),
        RULE(ClearWord),
        {"DictionaryCommand", Call(RunDictionaryCommand)},
        {"FindSuggestions", Call(Suggest)},
        RULE(IsCommonWord),
        RULE(SoundCode),
        RULE(WordAt),
        // records
        RULE(LoadSettings),
        RULE(SaveSettings),
        RULE(LoadScores),
        RULE(SaveScores),
        RULE(ScoreRankFor),
        RULE(InsertScore),
        RULE(LoadHistory),
        RULE(SaveHistory),
        RULE(RecordGame),
        RULE(LoadWonLost),
        RULE(SaveWonLost),
        RULE(ShowCongratulations),
        RULE(RepairSettings),
        RULE(LoadDisplaySettings),
        RULE(BuildPlayerList),
        RULE(MasterScoreFor),
        {"DrawPlayer", Call(MasterScoreFor)}, // one rule: the boxes are drawn while it sums
        RULE(ComputeStatistics),
        RULE(LowScoreLayout),
        RULE(SortPlayers),
        RULE(SaveChosenPlayers),
        RULE(CopyChosenPlayers),
        RULE(ShowNewHigh),
        // media
        RULE(ChooseTileSet),
        RULE(ChooseBackdrop),
        RULE(LoadNamedTileSet),
        RULE(LoadNamedBackdrop),
        RULE(StartMusic),
        RULE(StopMusic),
        RULE(NextTrack),
        RULE(ShowTrackLabel),
        {"PlaySound", Call(static_cast<void (*)(std::string&)>(PlaySound))},
        RULE(ScanContentPacks),
        RULE(HidePackLabels),
        // screens
        RULE(ShowPanel),
        RULE(LoadPanelBackground),
        RULE(FreePanelBackground),
        RULE(OpenChooser),
        RULE(SetHelpBalloons),
        RULE(OpenOptions),
        RULE(ShowThumbnails),
        RULE(ShowSetLabel),
        RULE(ChooseLayout),
        RULE(ShowScores),
        RULE(ShowHistory),
        RULE(ShowHistoryPage),
    };
#undef RULE
    return All;
}

std::string CallOperation(const std::string& Name, const std::vector<Argument>& Arguments)
{
    const auto Found = Operations().find(Name);
    if (Found == Operations().end()) return "error: no operation " + Name;
    try {
        return Found->second(Arguments);
    } catch (const BadArgument& Bad) {
        return "error: " + Bad.Text;
    }
}
