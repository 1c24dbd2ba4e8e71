#include "app/audio.h"

#include "data/asset_files.h"
#include "platform/windows_api.h"
#include "state/game.h"

namespace {

void closeDevice() {
    mciSendCommandA(Game.musicDevice, MCI_CLOSE, 0, 0);
}

MCIERROR openDevice(const char* fileName) {
    MCI_OPEN_PARMSA open = {};
    open.lpstrDeviceType = "sequencer";
    open.lpstrElementName = fileName;
    const MCIERROR error = mciSendCommandA(0, MCI_OPEN, MCI_OPEN_TYPE | MCI_OPEN_ELEMENT,
                                           reinterpret_cast<DWORD_PTR>(&open));
    if (error == 0) { Game.musicDevice = open.wDeviceID; }
    return error;
}

// The port itself is not used; a device that cannot report it cannot play.
MCIERROR queryPort() {
    MCI_STATUS_PARMS status = {};
    status.dwItem = MCI_SEQ_STATUS_PORT;
    return mciSendCommandA(Game.musicDevice, MCI_STATUS, MCI_STATUS_ITEM,
                           reinterpret_cast<DWORD_PTR>(&status));
}

MCIERROR playDevice(HWND window) {
    MCI_PLAY_PARMS play = {};
    play.dwCallback = reinterpret_cast<DWORD_PTR>(window);
    return mciSendCommandA(Game.musicDevice, MCI_PLAY, MCI_NOTIFY,
                           reinterpret_cast<DWORD_PTR>(&play));
}

void playTrack(std::int32_t track) {
    playMidi(Game.window, musicFiles[track]);
    Game.musicPlaying = 1;
}

} // namespace

MCIERROR playMidi(HWND window, const char* fileName) {
    MCIERROR error = openDevice(fileName);
    if (error != 0) { return error; }
    error = queryPort();
    if (error == 0) { error = playDevice(window); }
    if (error != 0) { closeDevice(); }
    return error;
}

void startMusic() {
    playTrack(0);
}

void stopMusic() {
    closeDevice();
    Game.musicPlaying = 0;
}

void rotateMusic() {
    closeDevice();
    if (!Game.musicPlaying || Game.screen != Screen::Level) { return; }
    playTrack(Game.nextTrack);
    Game.nextTrack = (Game.nextTrack + 1) % musicFileCount;
}
