// The word game on a board of tiles that stand far apart, with a dictionary of a few words.
#include "board/board.h"
#include "frame/files.h"
#include "media/media.h"
#include "records/records.h"
#include "tests/words/dictionary_files.h"
#include "words/word_play.h"

#include <gtest/gtest.h>

static std::vector<std::string> Sounds;

struct WordPlay : testing::Test {
    int Standing = 0;
    std::string Folder = TestFile("game");

    WordPlay()
    {
        GameDirectory = Folder;
        std::filesystem::create_directories(Folder + "/DATA");
        std::filesystem::create_directories(Folder + "/PHOT");
        WriteFile("game/DATA/AS0001", Blocks({"ABCDEFGHIJKL,CAT,FUCK,GOB,SHIT"}));
        static const GameStateRecord Zero; // too large for a stack
        GameState = Zero;
        BuildTables();
        InitElements();
        SetAllHandlers();
        QueueRandom({});
        Sounds.clear();
        Platform.PlaySoundFile = [](const std::string& File) { Sounds.push_back(File); };
        OpenDictionary();
        GameState.SoundLevel = 2;
        GameState.GameType = Wisdom;
        GameState.LayoutGroup = 3; // of a pack: its end panels need no picture
        GameState.LayoutNumber = 19;
        GameState.GameRunning = 1;
        for (int Place = 1; Place <= 10; ++Place) // no score of these tests gets a place
            GameState.ScoreTable(Wisdom, 19, Place).Score = 30000;
        ClearWord();
    }
    ~WordPlay() override
    {
        Platform.PlaySoundFile = [](const std::string&) {};
        std::filesystem::remove_all(Folder);
        GameDirectory = ".";
        static const GameStateRecord Zero;
        GameState = Zero;
        QueueRandom({});
    }

    // Tiles of these letters, each free; the first one's number.
    int Stand(const std::string& Letters)
    {
        const int First = Standing + 1;
        for (const char Letter : Letters) {
            const int Tile = ++Standing;
            StandAt(Tile, Letter - 'A' + 1, 1 + 3 * ((Tile - 1) % 13), 3 * ((Tile - 1) / 13), 0);
        }
        return First;
    }
    static void StandAt(int Tile, int Face, int X, int Y, int Z)
    {
        SetTag(imgTile(Tile), TwoDigits(Face) + TwoDigits(X) + TwoDigits(Y) + std::to_string(Z));
        SetTileState(Tile, 0);
        Show(imgTile(Tile));
        GameState.BoardMap(X, Y, Z) = 1;
        ++GameState.TilesLeft;
    }
    static void Press(int Tile) { imgTile_MouseDown(Tile, MouseButton::Left, 5, 5); }
    // Stands the letters, presses them in turn and hands the word in.
    void Spell(const std::string& Word)
    {
        const int First = Stand(Word);
        for (int I = 0; I < static_cast<int>(Word.size()); ++I) Press(First + I);
    }
    void HandIn(const std::string& Word)
    {
        Spell(Word);
        imgAcceptWord_Action(0);
    }
    static int Cell(int Tile) { return imgTile(Tile).Shows.Number; }
};

TEST_F(WordPlay, LettersCollectInTheOrderOfThePresses)
{
    Stand("TAC");
    Press(3);
    Press(2);
    Press(1);
    EXPECT_EQ(lblWord.Caption, "CAT");
    EXPECT_EQ(GameState.WordTiles(0), 3);
    EXPECT_EQ(GameState.WordTiles(1), 3);
    EXPECT_EQ(GameState.WordTiles(3), 1);
    EXPECT_EQ(Cell(3), 3 - 1 + 72); // C, marked
    EXPECT_EQ(GameState.TilesLeft, 3);
    EXPECT_TRUE(imgTile(3).Visible);
}

TEST_F(WordPlay, ExtraFacesCarryTheCommonLetters)
{
    StandAt(1, 27, 1, 1, 0);
    StandAt(2, 36, 9, 1, 0);
    Press(1);
    Press(2);
    EXPECT_EQ(lblWord.Caption, "AT");
}

TEST_F(WordPlay, APickedTileTakesNoSecondPress)
{
    Stand("CAT");
    Press(1);
    ShowNote(NoteTooShort);
    Press(1);
    EXPECT_EQ(lblWord.Caption, "C");
    EXPECT_EQ(picNote.Tag, "9"); // not even a note
}

TEST_F(WordPlay, ABlockedTileLeavesTheWordAlone)
{
    Stand("C");
    for (int I = 0; I < 3; ++I) StandAt(10 + I, 1, 1 + 2 * I, 20, 0);
    Press(1);
    Press(11);
    EXPECT_EQ(lblWord.Caption, "C");
    EXPECT_EQ(picNote.Tag, "1");
    EXPECT_EQ(GameState.NoteShowing, 1);
    // The next press puts the word's points back and picks its tile; a picked tile still blocks.
    GameState.WordScore = 7;
    Press(10);
    EXPECT_EQ(picNote.Tag, "11");
    EXPECT_EQ(lblBonus(0).Caption, "7 ");
    EXPECT_EQ(lblBonus(1).Caption, "7 ");
    EXPECT_EQ(GameState.NoteShowing, 0);
    EXPECT_EQ(lblWord.Caption, "CA");
    Press(11);
    EXPECT_EQ(lblWord.Caption, "CA");
}

TEST_F(WordPlay, TheHundredAndFirstLetterIsFatal)
{
    for (int I = 1; I <= 100; ++I) GameState.WordTiles(I) = 200;
    GameState.WordTiles(0) = 100;
    Stand("A");
    EXPECT_EXIT(Press(1), testing::ExitedWithCode(1), "WordTiles\\(101\\)");
}

TEST_F(WordPlay, AShortWordStays)
{
    imgAcceptWord_Action(0); // empty
    EXPECT_EQ(picNote.Tag, "9");
    EXPECT_EQ(GameState.NoteShowing, 1);
    Spell("AT");
    imgAcceptWord_Action(0);
    EXPECT_EQ(picNote.Tag, "9");
    EXPECT_EQ(lblWord.Caption, "AT");
    EXPECT_EQ(GameState.WordTiles(0), 2);
    EXPECT_EQ(lblWord.Tag, "");
    EXPECT_EQ(GameState.TilesLeft, 2);
}

TEST_F(WordPlay, AGoodWordTakesItsTilesAndScores)
{
    Stand("ZZZ");
    HandIn("CAT");
    EXPECT_EQ(GameState.TilesLeft, 3);
    EXPECT_EQ(GameState.WordScore, 2);
    EXPECT_EQ(GameState.Score, 2);
    EXPECT_EQ(lblScore(0).Caption, "2");
    EXPECT_EQ(lblScore(1).Caption, "2");
    EXPECT_EQ(lblWord.Caption, "");
    EXPECT_EQ(GameState.WordTiles(0), 0);
    EXPECT_EQ(GameState.WordTiles(1), 0);
    for (int Tile = 4; Tile <= 6; ++Tile) {
        EXPECT_FALSE(imgTile(Tile).Visible);
        EXPECT_EQ(GameState.BoardMap(TileX(Tile), TileY(Tile), TileZ(Tile)), 0);
    }
    EXPECT_EQ(picNote.Tag, "11");
    EXPECT_EQ(lblBonus(0).Caption, "2 ");
    EXPECT_EQ(lblBonus(1).Caption, "2 ");
    EXPECT_EQ(Sounds, std::vector<std::string>{"\\DATA\\FX0002"});
    EXPECT_EQ(GameState.GameRunning, 1);
}

TEST_F(WordPlay, PointsGrowWithTheLengthUpToNine)
{
    const int Points[] = {2, 3, 5, 7, 9, 12, 15, 15, 15, 15};
    std::string Block;
    for (int Length = 3; Length <= 12; ++Length)
        Block += (Length > 3 ? "," : "") +
                 std::string("ABCDEFGHIJKL").substr(0, static_cast<std::size_t>(Length));
    Open("lengths", Blocks({Block}));
    Stand("ZZZ");
    for (int Length = 3; Length <= 12; ++Length) {
        const int Before = GameState.Score, TilesBefore = GameState.TilesLeft;
        HandIn(std::string("ABCDEFGHIJKL").substr(0, static_cast<std::size_t>(Length)));
        EXPECT_EQ(GameState.Score - Before, Points[Length - 3]) << Length;
        EXPECT_EQ(GameState.TilesLeft, TilesBefore) << Length;
    }
}

TEST_F(WordPlay, ARefusedWordStaysInRedAndCostsNothing)
{
    HandIn("TAC");
    EXPECT_EQ(lblWord.Caption, "TAC");
    EXPECT_EQ(lblWord.Tag, NotAccepted);
    EXPECT_EQ(lblWord.Ink, (Colour{255, 0, 0}));
    EXPECT_EQ(GameState.WordTiles(0), 0);
    EXPECT_EQ(GameState.WordTiles(1), 0);
    EXPECT_EQ(Cell(1), 19); // T, normal again
    EXPECT_EQ(picNote.Tag, "10");
    EXPECT_EQ(GameState.NoteShowing, 1);
    EXPECT_EQ(GameState.Score, 0);
    EXPECT_EQ(GameState.TilesLeft, 3);
    EXPECT_TRUE(Sounds.empty());
    // Handed in again, it is refused again.
    ShowNote(NoteWordRest);
    imgAcceptWord_Action(0);
    EXPECT_EQ(picNote.Tag, "10");
    EXPECT_EQ(lblWord.Caption, "TAC");
}

TEST_F(WordPlay, APressAfterARefusalStartsAnew)
{
    HandIn("TAC");
    Press(2);
    EXPECT_EQ(lblWord.Caption, "A");
    EXPECT_EQ(lblWord.Tag, "");
    EXPECT_EQ(lblWord.Ink, (Colour{192, 192, 192}));
    EXPECT_EQ(GameState.WordTiles(0), 1);
    EXPECT_EQ(picNote.Tag, "11");
}

TEST_F(WordPlay, TwoWordsOfTheDictionaryAreBanned)
{
    for (const char* Word : {"FUCK", "SHIT"}) {
        EXPECT_EQ(Ask(Word, CheckWord), -1);
        HandIn(Word);
        EXPECT_EQ(lblWord.Tag, NotAccepted);
        imgUndoWisdom_Action(0);
    }
    EXPECT_EQ(GameState.Score, 0);
}

TEST_F(WordPlay, WithoutADictionaryOnlyCommonWordsAreGood)
{
    testing::internal::CaptureStderr();
    std::filesystem::remove(HostPath("\\DATA\\AS0001"));
    OpenDictionary();
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    Stand("ZZZ");
    HandIn("CAT");
    EXPECT_EQ(lblWord.Tag, NotAccepted);
    HandIn("THE");
    EXPECT_EQ(lblWord.Tag, "");
    EXPECT_EQ(GameState.Score, 2);
}

TEST_F(WordPlay, UndoTakesTheLastLetterBack)
{
    imgUndoWisdom_Action(0); // of nothing
    EXPECT_EQ(GameState.WordTiles(0), 0);
    Spell("CAT");
    Stand("ZZZ");
    imgUndoWisdom_Action(0);
    EXPECT_EQ(lblWord.Caption, "CA");
    EXPECT_EQ(GameState.WordTiles(0), 2);
    EXPECT_EQ(Cell(3), 19);
    EXPECT_EQ(Cell(2), 72);
    Press(3);
    imgAcceptWord_Action(0);
    EXPECT_EQ(GameState.Score, 2);
}

TEST_F(WordPlay, UndoOfARefusedWordClearsIt)
{
    GameState.WordScore = 5;
    HandIn("TAC");
    imgUndoWisdom_Action(0);
    EXPECT_EQ(lblWord.Caption, "");
    EXPECT_EQ(lblWord.Tag, "");
    EXPECT_EQ(lblWord.Ink, (Colour{192, 192, 192}));
    EXPECT_EQ(picNote.Tag, "11");
    EXPECT_EQ(lblBonus(0).Caption, "5 ");
}

TEST_F(WordPlay, MixForgetsTheWordUnderWay)
{
    GameState.MixCount = 1;
    Spell("CAT");
    MixTiles();
    EXPECT_EQ(lblWord.Caption, "");
    EXPECT_EQ(GameState.WordTiles(0), 0);
    for (int Tile = 1; Tile <= 3; ++Tile) EXPECT_LT(Cell(Tile), 36);
}

TEST_F(WordPlay, MixOnARefusedWordLeavesTagAndColour)
{
    GameState.MixCount = 1;
    HandIn("TAC");
    MixTiles();
    EXPECT_EQ(lblWord.Caption, "");
    EXPECT_EQ(lblWord.Tag, NotAccepted);
    EXPECT_EQ(lblWord.Ink, (Colour{255, 0, 0}));
    Press(1);
    EXPECT_EQ(lblWord.Tag, "");
    EXPECT_EQ(lblWord.Caption.size(), 1u);
}

TEST_F(WordPlay, PushMovesATileOutsideTheWordOnByALetter)
{
    GameState.PushCount = 2;
    Stand("CASZ");
    Press(1);
    imgPush_Action(0);
    Press(1); // a letter of the word ends the press before the power
    EXPECT_EQ(GameState.PushMode, 1);
    Press(3);
    EXPECT_EQ(GameState.PushMode, 0);
    EXPECT_EQ(TileFace(3), 20);
    EXPECT_EQ(lblWord.Caption, "C");
    Press(2);
    Press(3);
    EXPECT_EQ(lblWord.Caption, "CAT");
    imgAcceptWord_Action(0);
    EXPECT_EQ(GameState.Score, 2);
}

TEST_F(WordPlay, OneOrTwoTilesLeftLoseTheGame)
{
    for (const int Left : {1, 2}) {
        Stand(std::string(static_cast<std::size_t>(Left) - (Left == 2 ? 1 : 0), 'Z'));
        GameState.GameRunning = 1;
        GameState.TilesLeft = Left;
        Hide(picNoMoves);
        const int Score = GameState.Score;
        HandIn("CAT");
        EXPECT_EQ(GameState.TilesLeft, Left);
        EXPECT_EQ(GameState.Score, Score + 2); // the points stand
        EXPECT_EQ(GameState.GameRunning, 0);
        EXPECT_TRUE(picNoMoves.Visible);
        EXPECT_TRUE(picBlack.Visible);
        EXPECT_TRUE(imgAcceptWordDIS.Visible);
        EXPECT_TRUE(imgUndoWisdomDIS.Visible);
        EXPECT_TRUE(imgEndDIS.Visible); // the panel was covered while the game still ran
        EXPECT_EQ(picNote.Tag, "3");
        EXPECT_EQ(GameState.LayoutLost(3 * 120 + 19), Left);
        EXPECT_EQ(GameState.LayoutWon(3 * 120 + 19), 0);
        EXPECT_EQ(GameState.History(Wisdom, 1, 1).Name, "");
        EXPECT_TRUE(FileExists("\\Won-Lost.dat"));
        ShowNote(NoteWordRest);
    }
}

TEST_F(WordPlay, ThreeTilesLeftPlayOn)
{
    Stand("ZZZ");
    HandIn("CAT");
    EXPECT_EQ(GameState.GameRunning, 1);
    EXPECT_FALSE(picNoMoves.Visible);
}

TEST_F(WordPlay, AnEmptyBoardWinsWithABonus)
{
    QueueRandom({0.0});
    HandIn("CAT");
    EXPECT_EQ(GameState.GameRunning, 0);
    EXPECT_EQ(GameState.Score, 2 + 25);
    EXPECT_EQ(lblScore(0).Caption, "27");
    EXPECT_EQ(lblScore(1).Caption, "27");
    EXPECT_EQ(lblBonus(0).Caption, "25"); // no blank behind
    EXPECT_EQ(lblBonus(1).Caption, "25");
    EXPECT_EQ(picNote.Tag, "8");
    EXPECT_TRUE(picBlack.Visible);
    EXPECT_TRUE(picGameWon.Visible);
    EXPECT_TRUE(picCongrats.Visible);
    EXPECT_FALSE(picNewHigh.Visible);
    EXPECT_TRUE(imgbutStartDIS.Visible);
    EXPECT_EQ(GameState.LayoutWon(3 * 120 + 19), 1);
    const HistoryRow& Row = GameState.History(Wisdom, 2, 1);
    EXPECT_EQ(Row.Name, "-");
    EXPECT_EQ(Row.Place, "-");
    EXPECT_EQ(Row.Score, 27);
    EXPECT_EQ(Row.LayoutIndex, 3 * 120 + 19);
    EXPECT_EQ(Sounds, (std::vector<std::string>{"\\DATA\\FX0002", "\\DATA\\FX0007"}));
}

TEST_F(WordPlay, TheBonusGoesByTheBlockOfTheLayout)
{
    const struct {
        int Layout, Low, High;
    } Rows[] = {{1, 10, 20},  {12, 10, 20},  {13, 25, 35},  {72, 25, 35},
                {73, 40, 50}, {108, 40, 50}, {109, 55, 65}, {120, 55, 65}};
    for (const auto& [Layout, Low, High] : Rows) {
        for (int Place = 1; Place <= 10; ++Place)
            GameState.ScoreTable(Wisdom, Layout, Place).Score = 30000;
        GameState.LayoutNumber = Layout;
        for (const double Draw : {0.0, 0.999999}) {
            GameState.Score = 0;
            GameState.TilesLeft = 0;
            QueueRandom({Draw});
            HandIn("CAT");
            EXPECT_EQ(GameState.Score, 2 + (Draw == 0.0 ? Low : High)) << Layout;
            ShowNote(NoteWordRest);
        }
    }
}

TEST_F(WordPlay, AScoreWithAPlaceAsksForTheName)
{
    // A picture of the right size, as far as its header tells.
    std::string Picture = "BM" + Number(64, 4) + std::string(12, '\0') + Number(720, 4) +
                          Number(420, 4) + std::string(38, '\0');
    for (const int PictureNumber : {1, 19, 360})
        WriteFile("game/PHOT/PH" + FourDigits(PictureNumber), Picture);
    GameState.LayoutGroup = 0;
    GameState.ScoreTable(Wisdom, 19, 3).Score = 1;
    GameState.LastName = "ann";
    QueueRandom({0.0});
    HandIn("CAT");
    EXPECT_EQ(GameState.ScoreRank, 3);
    EXPECT_TRUE(picNewHigh.Visible);
    EXPECT_FALSE(picCongrats.Visible);
    EXPECT_EQ(txtName.Caption, "ann");
    EXPECT_EQ(GameState.History(Wisdom, 1, 1).Name, ""); // comes with the name
    EXPECT_EQ(GameState.LayoutWon(19), 1);
}

TEST_F(WordPlay, TheButtonsActOnTheReleaseOfTheLeftButton)
{
    const float Left = imgAcceptWord.Left, Top = imgAcceptWord.Top;
    DeliverMouseUp(imgAcceptWord, MouseButton::Left, 5, 5); // without a press
    EXPECT_EQ(picNote.Tag, "11");
    DeliverMouseDown(imgAcceptWord, MouseButton::Left, 5, 5);
    EXPECT_EQ(imgAcceptWord.Left, Left + 1);
    EXPECT_EQ(imgAcceptWord.Top, Top + 1);
    EXPECT_EQ(GameState.ButtonDown, 1);
    EXPECT_EQ(picNote.Tag, "11");
    DeliverMouseUp(imgAcceptWord, MouseButton::Left, 5, 5);
    EXPECT_EQ(imgAcceptWord.Left, Left);
    EXPECT_EQ(GameState.ButtonDown, 0);
    EXPECT_EQ(picNote.Tag, "9");
    Spell("CA");
    DeliverMouseDown(imgUndoWisdom, MouseButton::Right, 5, 5);
    DeliverMouseUp(imgUndoWisdom, MouseButton::Right, 5, 5);
    EXPECT_EQ(lblWord.Caption, "CA");
    DeliverMouseDown(imgUndoWisdom, MouseButton::Left, 5, 5);
    DeliverMouseUp(imgUndoWisdom, MouseButton::Left, 5, 5);
    EXPECT_EQ(lblWord.Caption, "C");
}

TEST_F(WordPlay, TheHoverLeavesPickedTilesMarked)
{
    Stand("CA");
    imgTile_MouseMove(1, MouseButton::Left, 5, 5);
    Press(1);
    imgTile_MouseMove(2, MouseButton::Left, 5, 5);
    EXPECT_EQ(Cell(1), 2 + 72);
    EXPECT_EQ(Cell(2), 36);
    imgTile_MouseMove(1, MouseButton::Left, 5, 5);
    EXPECT_EQ(Cell(1), 2 + 72);
    EXPECT_EQ(Cell(2), 0);
    ClearHover();
    EXPECT_EQ(Cell(1), 2 + 72);
}
