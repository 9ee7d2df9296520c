#include "board/board.h"

bool IsBlocked(int X, int Y, int Z)
{
    // The corners of all that is read: a bad anchor is always caught, and the rest needs no test.
    const auto& Map = GameState.BoardMap;
    Map(X - 2, Y - 1, Z);
    Map(X + 2, Y + 1, Z + 1);
    const I16* Here = &Map(X, Y, Z);
    constexpr int StepX = 42 * 11, StepY = 11, StepZ = 1;

    // As numbers, so that nothing branches.
    const auto Taken = [&](int At) { return static_cast<int>(Here[At] == 1); };
    const auto Side = [&](int At) { return Taken(At - StepY) | Taken(At) | Taken(At + StepY); };
    const int LeftTaken = Side(-2 * StepX);
    const int RightTaken = Side(2 * StepX);
    const int Covered = Side(StepZ - StepX) | Side(StepZ) | Side(StepZ + StepX);
    return (LeftTaken & RightTaken) != 0 || Covered != 0;
}

void ScanOpenPairs()
{
    GameState.NoteShowing = 0;
    GameState.MoveCount = 0;
    for (auto* List : {&GameState.FreeTiles, &GameState.FreeFaces, &GameState.OpenPairA,
                       &GameState.OpenPairB, &GameState.FaceFirst, &GameState.FaceSecond})
        List->Clear();

    int Free = 0;
    for (int Tile = 1; Tile <= TileCount; ++Tile) {
        const int X = TileX(Tile), Y = TileY(Tile), Z = TileZ(Tile);
        if (GameState.BoardMap(X, Y, Z) != 1) continue; // removed
        if (IsBlocked(X, Y, Z)) continue;
        ++Free;
        GameState.FreeTiles(Free) = Tile;
        GameState.FreeFaces(Free) = TileFace(Tile);
    }
    GameState.FreeCount = Free;

    for (int N = 1; N <= Free; ++N) {
        const int Face = GameState.FreeFaces(N);
        if (GameState.FaceFirst(Face) <= 0) {
            GameState.FaceFirst(Face) = GameState.FreeTiles(N);
            continue;
        }
        GameState.FaceSecond(Face) = GameState.FreeTiles(N);
        // Four free tiles of a face are two pairs, not six: the counter tells how many pairs can
        // still be taken. Don't "mend" this.
        ++GameState.MoveCount;
        GameState.OpenPairA(GameState.MoveCount) = GameState.FaceFirst(Face);
        GameState.OpenPairB(GameState.MoveCount) = GameState.FaceSecond(Face);
        GameState.FaceFirst(Face) = GameState.FaceSecond(Face) = 0;
    }
    GameState.HintCursor = 0;
    if (GameState.GameType <= Agility && GameState.GameType >= Finesse &&
        GameState.GameRunning == 1)
        ShowOpenPairCount();
}
