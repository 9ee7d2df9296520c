#include "tests/unit/small_board.h"

TEST(SetTileState, ElementNothingIsIgnored)
{
    StandTiles({{.Face = 7, .X = 1}});
    SetPicture(imgTile(0), NoPicture());
    SetTileState(0, 1);
    EXPECT_EQ(PictureName(imgTile(0).Shows), "");
}

TEST(SetTileState, TakesTheFaceFromTheTagAndChangesThePictureAlone)
{
    StandTiles({{.Face = 36, .X = 1}});
    const float Left = imgTile(1).Left;
    for (int State = 0; State <= 2; ++State) {
        SetTileState(1, State);
        EXPECT_EQ(imgTile(1).Shows.Number, 35 + 36 * State);
    }
    EXPECT_EQ(imgTile(1).Left, Left);
    EXPECT_TRUE(imgTile(1).Visible);
    EXPECT_EXIT(SetTileState(1, 3), testing::ExitedWithCode(1), "clpTileSet\\(143\\)");
}

TEST(ShowNote, EachNumber)
{
    for (int Note = 0; Note <= 12; ++Note) {
        StandTiles({});
        ShowOpenPairCount();
        ASSERT_TRUE(imgBlueDigitB.Visible);
        SetVisible(lblBonus(0), Note % 2 == 0);
        SetVisible(lblBonus(1), Note % 2 == 1);
        GameState.NoteShowing = 0;
        ShowNote(Note);
        EXPECT_EQ(GameState.NoteShowing, Note < 3 ? 1 : 0) << Note;
        EXPECT_FALSE(imgBlueDigitA.Visible) << Note;
        EXPECT_FALSE(imgBlueDigitB.Visible) << Note;
        const bool Bonus = Note == 7 || Note == 8 || Note == 11;
        EXPECT_EQ(lblBonus(0).Visible, Bonus) << Note;
        EXPECT_EQ(lblBonus(1).Visible, Bonus) << Note;
        EXPECT_EQ(picNote.Tag, std::to_string(Note));
        EXPECT_EQ(PictureName(picNote.Shows), "clpNotes(" + std::to_string(Note) + ")");
    }
    EXPECT_EXIT(ShowNote(13), testing::ExitedWithCode(1), "clpNotes\\(13\\) is outside 0..12");
}

TEST(ShowNote, ALaterNoteLeavesNoteShowing)
{
    StandTiles({});
    ShowNote(NoteMismatch);
    ShowNote(NotePickTile);
    EXPECT_EQ(GameState.NoteShowing, 1);
}

TEST(ShowOpenPairCount, UnitsAndTens)
{
    StandTiles({});
    struct Case {
        int Moves;
        const char *Tens, *Units;
        float Left;
    };
    for (const Case& C :
         {Case{0, "", "clpBlueDigitsB(0)", 82}, Case{9, "", "clpBlueDigitsB(9)", 82},
          Case{10, "clpBlueDigitsA(1)", "clpBlueDigitsB(0)", 88},
          Case{37, "clpBlueDigitsA(3)", "clpBlueDigitsB(7)", 88}}) {
        GameState.MoveCount = C.Moves;
        ShowOpenPairCount();
        EXPECT_EQ(imgBlueDigitA.Visible, *C.Tens != 0) << C.Moves;
        if (*C.Tens) {
            EXPECT_EQ(PictureName(imgBlueDigitA.Shows), C.Tens);
        }
        EXPECT_EQ(PictureName(imgBlueDigitB.Shows), C.Units);
        EXPECT_EQ(imgBlueDigitB.Left, C.Left) << C.Moves;
    }
}

TEST(ShowGamePanel, OneOfThree)
{
    StandTiles({});
    for (int Type = Finesse; Type <= Wisdom; ++Type) {
        GameState.GameType = Type;
        ShowGamePanel();
        for (int Panel = 1; Panel <= 3; ++Panel)
            EXPECT_EQ(picGamePanel(Panel).Visible, Panel == Type) << Type;
    }
}

TEST(ClearHover, LeavesTheSelectedTileOnlyWhileItIsSelected)
{
    StandTiles({{.Face = 7, .X = 1}, {.Face = 8, .X = 9}});
    PressTile(1);
    HoverTile(1);
    GameState.HoverTile = 1;
    ClearHover();
    EXPECT_EQ(StateOf(1), 1);
    PressTile(1); // taken back: SelectedTile keeps its value, the tile is at rest
    HoverTile(1);
    EXPECT_EQ(GameState.SelectedTile, 1);
    ClearHover();
    EXPECT_EQ(StateOf(1), 0);
}
