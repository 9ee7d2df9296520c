#include "records/fields.h"
#include "tests/records/records_test.h"

namespace
{

// What a settings file says, in its order.
struct SettingsModel {
    int DisplayMode = 1, WindowLeft = -300, WindowTop = 70000;
    int GameType = 2, MusicOn = 1, SoundLevel = 1, HelpBalloons = 1;
    int TileSetFixed = 0, TileSetRotate = 41, TileSetRandom = 1;
    int BackdropFixed = 72, BackdropRotate = 13, BackdropRandom = 1;
    int CurrentTrack = 30, TileGroupShown = 6, BackdropGroupShown = 1;
    int LayoutGroup = 3, TilePageCursor = 5, LayoutSetCursor = 4;
    int LayoutNumber = 120, RandomLayoutMode = 6;
    int Blocks[9] = {1, 0, 1, 1, 0, 0, 1, 0, 1};
    int HistoryView = 3, GraphType = 2;
    int SizeClasses[3] = {4, 0, 2};
    std::string Names[3][12];

    SettingsModel()
    {
        for (int Type = 0; Type < 3; ++Type)
            for (int I = 0; I < 12; ++I)
                Names[Type][I] = "player " + std::to_string(100 * (Type + 1) + I);
        Names[1][4] = "";
    }
    std::string File() const
    {
        FileBytes Out;
        Out.Number(DisplayMode).Number(WindowLeft, 4).Number(WindowTop, 4);
        for (int Value :
             {GameType, MusicOn, SoundLevel, HelpBalloons, TileSetFixed, TileSetRotate,
              TileSetRandom, BackdropFixed, BackdropRotate, BackdropRandom, CurrentTrack,
              TileGroupShown, BackdropGroupShown, LayoutGroup, TilePageCursor, LayoutSetCursor})
            Out.Number(Value);
        Out.Number(LayoutNumber, 4).Number(RandomLayoutMode);
        for (int Mark : Blocks) Out.Number(Mark);
        Out.Number(HistoryView).Number(GraphType);
        for (int Class : SizeClasses) Out.Number(Class);
        for (const auto& List : Names)
            for (const std::string& Name : List) Out.Text(Name, 12);
        return Out.Bytes;
    }
};

struct Settings : RecordsTest {
    static void LoadFrom(const std::string& File)
    {
        PutFile("Settings.dat", File);
        LoadSettings();
    }
    static void SaveWhereTheWindowWas()
    {
        SetPlace(frmMain, static_cast<float>(GameState.WindowLeft),
                 static_cast<float>(GameState.WindowTop));
        SaveSettings();
    }
    // A file of zeros with one 16-bit number in it.
    static void LoadNumber(int Offset, int Value)
    {
        std::string File(508, '\0');
        File.replace(static_cast<std::size_t>(Offset), 2, FileBytes().Number(Value).Bytes);
        LoadFrom(File);
    }
};

} // namespace

TEST_F(Settings, EveryFieldIsReadFromItsPlace)
{
    InstallPacks();
    const SettingsModel Model;
    LoadFrom(Model.File());
    EXPECT_EQ(GameState.DisplayMode, 1);
    EXPECT_EQ(GameState.WindowLeft, -300);
    EXPECT_EQ(GameState.WindowTop, 70000);
    EXPECT_EQ(GameState.GameType, 2);
    EXPECT_EQ(GameState.MusicOn, 1);
    EXPECT_EQ(GameState.SoundLevel, 1);
    EXPECT_EQ(GameState.HelpBalloons, 1);
    EXPECT_EQ(GameState.TileSetFixed, 0);
    EXPECT_EQ(GameState.TileSetRotate, 41);
    EXPECT_EQ(GameState.TileSetRandom, 1);
    EXPECT_EQ(GameState.BackdropFixed, 72);
    EXPECT_EQ(GameState.BackdropRotate, 13);
    EXPECT_EQ(GameState.BackdropRandom, 1);
    EXPECT_EQ(GameState.CurrentTrack, 30);
    EXPECT_EQ(GameState.TileGroupShown, 6);
    EXPECT_EQ(GameState.BackdropGroupShown, 1);
    EXPECT_EQ(GameState.LayoutGroup, 3);
    EXPECT_EQ(GameState.LayoutNumber, 120);
    EXPECT_EQ(GameState.RandomLayoutMode, 6);
    for (int Block = 1; Block <= 9; ++Block)
        EXPECT_EQ(GameState.RandomBlockChosen(Block), Model.Blocks[Block - 1]) << Block;
    EXPECT_EQ(GameState.HistoryView, 3);
    EXPECT_EQ(GameState.GraphType, 2);
    for (int Type = 1; Type <= 3; ++Type) {
        EXPECT_EQ(GameState.ProfileSizeClass(Type), Model.SizeClasses[Type - 1]);
        for (int I = 1; I <= 12; ++I)
            EXPECT_EQ(GameState.PlayerNames(Type, I), Model.Names[Type - 1][I - 1]);
    }
}

TEST_F(Settings, TheWrittenFileIsTheReadOneToTheLastByte)
{
    InstallPacks();
    const std::string File = SettingsModel().File();
    ASSERT_EQ(File.size(), 508U);
    LoadFrom(File);
    std::filesystem::remove(Place("Settings.dat"));
    SaveWhereTheWindowWas();
    EXPECT_EQ(FirstDifference(FileContent("Settings.dat"), File), "");
}

TEST_F(Settings, EveryLegalValueOfEveryNumberComesBack)
{
    InstallPacks();
    SettingsModel Model;
    const struct {
        int& Value;
        int Last;
    } Fields[] = {{Model.DisplayMode, 1},        {Model.MusicOn, 1},
                  {Model.HelpBalloons, 1},       {Model.TileSetFixed, 96},
                  {Model.TileSetRotate, 120},    {Model.TileSetRandom, 1},
                  {Model.BackdropFixed, 72},     {Model.BackdropRotate, 72},
                  {Model.BackdropRandom, 1},     {Model.CurrentTrack, 30},
                  {Model.BackdropGroupShown, 1}, {Model.LayoutNumber, 120},
                  {Model.RandomLayoutMode, 6},   {Model.HistoryView, 3},
                  {Model.GraphType, 2},          {Model.GameType, 3},
                  {Model.SizeClasses[1], 4},     {Model.Blocks[8], 1}};
    for (const auto& [Value, Last] : Fields)
        for (Value = 0; Value < Last; ++Value) {
            LoadFrom(Model.File());
            SaveWhereTheWindowWas();
            ASSERT_EQ(FirstDifference(FileContent("Settings.dat"), Model.File()), "");
        }
}

TEST_F(Settings, ASaveTakesTheWindowsPlaceInWholeTwips)
{
    GameState.WindowLeft = 12; // as read; no rule uses it
    SetPlace(frmMain, -150.75F, 2415.5F);
    SaveSettings();
    EXPECT_EQ(FileContent("Settings.dat").substr(2, 8),
              FileBytes().Number(-150, 4).Number(2415, 4).Bytes);
    EXPECT_EQ(GameState.WindowLeft, -150);
    EXPECT_EQ(GameState.WindowTop, 2415);
}

TEST_F(Settings, AFirstRunHasItsDefaults)
{
    LoadSettings();
    RepairSettings();
    EXPECT_EQ(GameState.DisplayMode, 0);
    EXPECT_EQ(GameState.GameType, Finesse);
    EXPECT_EQ(GameState.SoundLevel, 2);
    EXPECT_EQ(GameState.TileSetFixed, 1);
    EXPECT_EQ(GameState.BackdropFixed, 1);
    EXPECT_EQ(GameState.LayoutGroup, 0);
    EXPECT_EQ(GameState.LayoutNumber, 19);
    EXPECT_EQ(GameState.TilePageCursor, 1);
    EXPECT_EQ(GameState.LayoutSetCursor, 1);
    EXPECT_EQ(GameState.HistoryView, 1);
    EXPECT_EQ(GameState.GraphType, 1);
    EXPECT_EQ(GameState.ProfileSizeClass(1), 1);
    EXPECT_EQ(GameState.ProfileSizeClass(2), 0);
    EXPECT_EQ(GameState.PlayerNames(3, 12), "");
    EXPECT_TRUE(Troubles.empty());
}

TEST_F(Settings, AMissingFileIsMadeEmpty)
{
    LoadSettings();
    EXPECT_TRUE(std::filesystem::exists(Place("Settings.dat")));
    EXPECT_EQ(FileContent("Settings.dat"), "");
}

TEST_F(Settings, EachDefaultAppliesOnlyWhereTheFileGaveNothing)
{
    GameState.TileSetRotate = 5;
    GameState.BackdropRandom = 1;
    GameState.RandomLayoutMode = 3;
    GameState.ProfileSizeClass(2) = 4;
    GameState.GameType = Wisdom;
    GameState.HistoryView = 2;
    GameState.GraphType = 2;
    RepairSettings();
    EXPECT_EQ(GameState.TileSetFixed, 0);
    EXPECT_EQ(GameState.BackdropFixed, 0);
    EXPECT_EQ(GameState.LayoutNumber, 0);
    EXPECT_EQ(GameState.ProfileSizeClass(1), 0);
    EXPECT_EQ(GameState.GameType, Wisdom);
    EXPECT_EQ(GameState.HistoryView, 2);
    EXPECT_EQ(GameState.GraphType, 2);
}

TEST_F(Settings, TheCursorsAreFoundInTheLayoutSets)
{
    InstallPacks();
    SettingsModel Model;
    Model.TileGroupShown = 2;
    Model.TilePageCursor = 50;
    Model.LayoutGroup = 6;
    Model.LayoutSetCursor = 0;
    LoadFrom(Model.File());
    EXPECT_EQ(GameState.TilePageCursor, 3);
    EXPECT_EQ(GameState.LayoutSetCursor, 5);
}

TEST_F(Settings, NoMatchLeavesACursorAsItStood)
{
    SettingsModel Model; // no scan has filled LayoutSets
    Model.TileGroupShown = 2;
    Model.TilePageCursor = 50;
    Model.LayoutGroup = 1;
    Model.LayoutSetCursor = 0;
    LoadFrom(Model.File());
    EXPECT_EQ(GameState.TilePageCursor, 50);
    EXPECT_EQ(GameState.LayoutSetCursor, 1);
}

TEST_F(Settings, ANameOfFourteenCharactersKeepsItsLastTwelve)
{
    GameState.PlayerNames(2, 7) = "abcdefghijklmn";
    SaveSettings();
    EXPECT_EQ(FileContent("Settings.dat").substr(76 + (12 + 6) * 12, 12), "cdefghijklmn");
    LoadSettings();
    EXPECT_EQ(GameState.PlayerNames(2, 7), "cdefghijklmn");
}

TEST_F(Settings, ANameIsSingleByteOnDiskAndUtf8InMemory)
{
    GameState.PlayerNames(1, 1) = "Zo\u00eb \u00c5se\u00df";
    GameState.PlayerNames(1, 2) = "\u0141uk\u20ac\U0001F004";
    SaveSettings();
    EXPECT_EQ(FileContent("Settings.dat").substr(76, 24), "    Zo\xeb \xc5se\xdf       ?uk\x80?");
    LoadSettings();
    EXPECT_EQ(GameState.PlayerNames(1, 1), "Zo\u00eb \u00c5se\u00df");
    EXPECT_EQ(GameState.PlayerNames(1, 2), "?uk\u20ac?");
}

// Letters and signs of Windows-1252 that Latin-1 does not have.
TEST_F(Settings, TheBytesFrom80To9FAreCharacters)
{
    std::string File(508, '\0');
    File.replace(76, 36,
                 "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8a\x8b\x8c"
                 "\x8e\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9a\x9b"
                 "   \x9c\x9e\x9f   ole");
    LoadFrom(File);
    EXPECT_EQ(GameState.PlayerNames(1, 1), "€‚ƒ„…†‡ˆ‰Š‹Œ");
    EXPECT_EQ(GameState.PlayerNames(1, 2), "Ž‘’“”•–—˜™š›");
    EXPECT_EQ(GameState.PlayerNames(1, 3), "œžŸ   ole");
    SaveSettings();
    EXPECT_EQ(FileContent("Settings.dat").substr(76, 24), File.substr(76, 24));
    EXPECT_EQ(FileContent("Settings.dat").substr(100, 12), "   \x9c\x9e\x9f   ole");
    EXPECT_EQ(LowerCase("ŠŒŽŸ Ole"), "šœžÿ ole");
}

TEST_F(Settings, BytesThatAreNoUtf8AreFiledAsTheyAre)
{
    GameState.PlayerNames(1, 1) = "zo\xeb \xc3";
    GameState.PlayerNames(1, 2) = "\xe2\x82 \xf0\x9f";
    SaveSettings();
    EXPECT_EQ(FileContent("Settings.dat").substr(76, 24),
              "       zo\xeb \xc3       \xe2\x82 \xf0\x9f");
}

TEST_F(Settings, BytesThatAreNoCharactersReadAsBlanks)
{
    std::string File(508, '\0');
    File.replace(76, 12,
                 std::string("\0\0\x01 a\x7f\x9d"
                             "b\n \0\0",
                             12));
    LoadFrom(File);
    EXPECT_EQ(GameState.PlayerNames(1, 1), "a  b");
}

TEST_F(Settings, TheMarkOfBlockZeroIsNotFiled)
{
    GameState.RandomBlockChosen(0) = 1;
    SaveSettings();
    EXPECT_EQ(FileContent("Settings.dat").substr(46, 20), std::string(20, '\0'));
}

TEST_F(Settings, ALongerFileKeepsItsTail)
{
    const std::string Tail("of another version\0\xff\x01!", 22);
    PutFile("Settings.dat", SettingsModel().File() + Tail);
    LoadSettings();
    GameState.MusicOn = 0;
    SaveWhereTheWindowWas();
    SettingsModel Model;
    Model.MusicOn = 0;
    EXPECT_EQ(FirstDifference(FileContent("Settings.dat"), Model.File() + Tail), "");
}

TEST_F(Settings, AFileFarTooLongIsLeftAlone)
{
    PutFile("Settings.dat", "x");
    std::filesystem::resize_file(Place("Settings.dat"), 1LL << 40); // a hole: takes no room
    LoadSettings();
    SaveSettings();
    EXPECT_EQ(std::filesystem::file_size(Place("Settings.dat")), 1ULL << 40);
    ASSERT_EQ(Troubles.size(), 1U);
    EXPECT_EQ(Troubles[0], "The settings could not be saved: the old file cannot be read.");
}

TEST_F(Settings, AFieldCutInTheMiddleTakesTheBytesThatAreThere)
{
    const std::string File = SettingsModel().File();
    InstallPacks();
    LoadFrom(File.substr(0, 4));
    EXPECT_EQ(GameState.WindowLeft, 0xfed4); // the low half of -300
    LoadFrom(File.substr(0, 76 + 12 + 10));
    EXPECT_EQ(GameState.PlayerNames(1, 1), "player 100");
    EXPECT_EQ(GameState.PlayerNames(1, 2), "player 1"); // two characters are gone
    EXPECT_EQ(GameState.PlayerNames(1, 3), "");
}

TEST_F(Settings, CutAtEveryLengthTheRestIsZero)
{
    InstallPacks();
    const std::string File = SettingsModel().File();
    for (std::size_t Length = 0; Length <= File.size(); ++Length) {
        FreshState();
        InstallPacks();
        LoadFrom(File.substr(0, Length));
        SaveWhereTheWindowWas();
        std::string Padded = File.substr(0, Length) + std::string(508 - Length, '\0');
        for (std::size_t I = std::max<std::size_t>(Length, 76); I < 508; ++I) Padded[I] = ' ';
        // What is left of a cut name moves to the right end of its field.
        if (Length > 76 && (Length - 76) % 12 != 0) {
            const std::size_t Field = Length - (Length - 76) % 12;
            std::string Name = File.substr(Field, Length - Field);
            Name.erase(0, Name.find_first_not_of(' '));
            Name.erase(Name.find_last_not_of(' ') + 1);
            Padded.replace(Field, 12, FileBytes().Text(Name, 12).Bytes);
        }
        if (Length < 15) Padded[14] = 2; // sound on
        // Worked out from the lists, whatever the file said.
        Padded[38] = Length > 32 ? 5 : 1;
        Padded[40] = Length > 36 ? 4 : 1;
        ASSERT_EQ(FirstDifference(FileContent("Settings.dat"), Padded), "") << Length;
    }
}

TEST_F(Settings, TheSplashReadsThreeFieldsOnly)
{
    PutFile("Settings.dat", SettingsModel().File());
    LoadDisplaySettings();
    EXPECT_EQ(GameState.DisplayMode, 1);
    EXPECT_EQ(GameState.WindowLeft, -300);
    EXPECT_EQ(GameState.WindowTop, 70000);
    EXPECT_EQ(GameState.GameType, 0);
    EXPECT_EQ(GameState.LayoutNumber, 0);
    EXPECT_EQ(GameState.SoundLevel, 0);
}

TEST_F(Settings, ADamagedNumberReadsAsZero)
{
    InstallPacks();
    const struct {
        int Offset;
        I16& Value;
        int LastLegal;
    } Fields[] = {{0, GameState.DisplayMode, 1},
                  {10, GameState.GameType, 3},
                  {12, GameState.MusicOn, 1},
                  {16, GameState.HelpBalloons, 1},
                  {18, GameState.TileSetFixed, 600},
                  {20, GameState.TileSetRotate, 600},
                  {22, GameState.TileSetRandom, 1},
                  {24, GameState.BackdropFixed, 72},
                  {26, GameState.BackdropRotate, 72},
                  {28, GameState.BackdropRandom, 1},
                  {30, GameState.CurrentTrack, 30},
                  {32, GameState.TileGroupShown, 24},
                  {34, GameState.BackdropGroupShown, 1},
                  {36, GameState.LayoutGroup, 24},
                  {46, GameState.RandomLayoutMode, 6},
                  {48, GameState.RandomBlockChosen(1), 1},
                  {64, GameState.RandomBlockChosen(9), 1},
                  {66, GameState.HistoryView, 3},
                  {68, GameState.GraphType, 2},
                  {70, GameState.ProfileSizeClass(1), 4},
                  {74, GameState.ProfileSizeClass(3), 4}};
    for (const auto& [Offset, Value, LastLegal] : Fields)
        for (int Damaged : {LastLegal + 1, -1, -5, 77, 900, 20000, 32767, -32768}) {
            if (Damaged > 0 && Damaged <= LastLegal) continue;
            LoadNumber(Offset, Damaged);
            EXPECT_EQ(Value, 0) << "offset " << Offset << ", value " << Damaged;
        }
}

TEST_F(Settings, TheLayoutNumberHasThirtyTwoBits)
{
    std::string File(508, '\0');
    File.replace(42, 4, FileBytes().Number(65536 + 19, 4).Bytes);
    LoadFrom(File);
    EXPECT_EQ(GameState.LayoutNumber, 0);
    RepairSettings();
    EXPECT_EQ(GameState.LayoutNumber, 19);
}

TEST_F(Settings, ChoicesFromAPackThatIsGoneGoBackToTheFirstList)
{
    InstallPacks(); // lists 3 and 6; nothing in between
    SettingsModel Model;
    Model.LayoutGroup = 4;
    Model.TileGroupShown = 5;
    Model.TileSetRotate = 121;
    Model.TileSetFixed = 4 * 24 + 1;
    LoadFrom(Model.File());
    EXPECT_EQ(GameState.LayoutGroup, 0);
    EXPECT_EQ(GameState.LayoutSetCursor, 1);
    EXPECT_EQ(GameState.LayoutNumber, 120);
    EXPECT_EQ(GameState.TileSetRotate, 1);
    EXPECT_EQ(GameState.TileSetFixed, 0);
    // Its sheet is loaded when the options open and not before: no match leaves the cursor.
    EXPECT_EQ(GameState.TileGroupShown, 5);
    EXPECT_EQ(GameState.TilePageCursor, Model.TilePageCursor);
    Model.LayoutGroup = 6;
    Model.TileSetFixed = 6 * 24 + 24;
    Model.TileSetRotate = 120;
    LoadFrom(Model.File());
    EXPECT_EQ(GameState.LayoutGroup, 6);
    EXPECT_EQ(GameState.TileSetFixed, 168);
    EXPECT_EQ(GameState.TileSetRotate, 120);
}

TEST_F(Settings, ChoicesFromAPackWhoseFilesAreThereStandWithoutItsIndex)
{
    InstallPacks(); // lists 3 and 6; nothing in between
    SettingsModel Model;
    Model.LayoutGroup = 4;
    Model.LayoutSetCursor = 9;
    Model.TileSetRotate = 121;
    Model.TileSetFixed = 4 * 24 + 1;
    for (const char* File : {"DATA/LY9004", "DATA/TS0097", "DATA/TS0121"}) PutFile(File, "");
    LoadFrom(Model.File());
    EXPECT_EQ(GameState.LayoutGroup, 4);
    EXPECT_EQ(GameState.LayoutSetCursor, 9); // as it stood: nothing matches
    EXPECT_EQ(GameState.TileSetRotate, 121);
    EXPECT_EQ(GameState.TileSetFixed, 97);
}

TEST_F(Settings, BeforeAScanOfThePacksNoneIsMissing)
{
    const SettingsModel Model; // lists 3 and 6, tile set 41 of the cycle
    LoadFrom(Model.File());
    EXPECT_EQ(GameState.LayoutGroup, 3);
    EXPECT_EQ(GameState.TileGroupShown, 6);
    EXPECT_EQ(GameState.LayoutSetCursor, 4); // as it stood: nothing matches
    EXPECT_EQ(GameState.TilePageCursor, 5);
}

TEST_F(Settings, ReadingADamagedFileLeavesItOnTheDisk)
{
    const std::string Damaged(700, '\xee');
    LoadFrom(Damaged);
    RepairSettings();
    EXPECT_EQ(FileContent("Settings.dat"), Damaged);
}
