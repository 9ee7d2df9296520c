#include "board/board.h"
#include "frame/files.h"
#include "media/media.h"

constexpr int TrackEnded = 3;

void SetTrack(int Track)
{
    Platform.MusicSetFile(DataFile("MS", Track));
}

void StartMusic()
{
    SetTrack(GameState.CurrentTrack);
    Platform.MusicPlay();
    GameState.MusicPlaying = 1;
}

void StopMusic()
{
    Platform.MusicStop();
    Platform.Yield();
    GameState.MusicPlaying = 0;
}

void NextTrack()
{
    if (GameState.MusicReady == 0) return;
    ++GameState.CurrentTrack;
    if (GameState.CurrentTrack > GameState.MusicCount) GameState.CurrentTrack = 1;
    Platform.Yield();
    Platform.MusicStop();
    SetTrack(GameState.CurrentTrack);
    Platform.Yield();
    Platform.MusicPlay();
    ShowTrackLabel();
}

void ShowTrackLabel()
{
    SetCaption(lblCurrentTrack, TwoDigits(GameState.CurrentTrack));
}

void ActiveMP31_StateChange(int State)
{
    // The stop that NextTrack itself orders is another state.
    if (State == TrackEnded && GameState.MusicPlaying == 1) NextTrack();
}

void lblSkipTrack_Click(int)
{
    PlaySound("TIC");
    GameState.MusicOn = GameState.OptMusicOn = 1;
    SetPicture(imgOptMusic, StockPicture(imgOption(1)));
    GameState.MusicPlaying = 1;
    NextTrack();
}
