#include "platform/sdl/sequencer.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/common/errors.h"
#include "platform/common/message_queue.h"
#include "platform/common/provider.h"
#include "platform/common/regular_file.h"
#include "platform/sdl/music_stream.h"
#include "platform/sdl/sound.h"
#include "platform/sdl/sound_font.h"
#include "platform/sdl/synthesizer.h"
#include "platform/windows_api.h"

namespace {

// Error codes of mciSendCommandA.
constexpr MCIERROR wrongDevice = 257;
constexpr MCIERROR unknownParameter = 258;
constexpr MCIERROR unknownCommand = 261;
constexpr MCIERROR unknownDeviceType = 263;
constexpr MCIERROR fileNotFound = 275;
constexpr MCIERROR deviceNotReady = 276;
constexpr MCIERROR badFile = 296;

constexpr std::size_t largestPiece = 1
                                     << 20; // bytes; isPlayableMidi takes too long for a larger one

struct Piece {
    MCIDEVICEID device = 0; // 0: no piece is open
    std::vector<std::uint8_t> file;
    std::vector<std::string> soundFonts;
    HWND listener = nullptr; // gets MM_MCINOTIFY; null: no window
};

Piece open;
MCIDEVICEID lastDevice = 0;

MCIERROR refuse(MCIERROR error, const std::string& why) {
    logErrorOnce("no music: " + why);
    return error;
}

void close() {
    haltMusic();
    removePostedMessages(MM_MCINOTIFY, MCI_NOTIFY_SUCCESSFUL);
    open = {};
}

MCIERROR closePiece() {
    const HWND listener = isMusicFinished() ? nullptr : open.listener;
    const auto device = static_cast<LPARAM>(open.device);
    close();
    if (listener != nullptr) { PostMessageA(listener, MM_MCINOTIFY, MCI_NOTIFY_ABORTED, device); }
    return 0;
}

MCIERROR openPiece(DWORD_PTR flags, MCI_OPEN_PARMSA* request) {
    const bool complete = (flags & MCI_OPEN_TYPE) != 0 && (flags & MCI_OPEN_ELEMENT) != 0 &&
                          request != nullptr && request->lpstrDeviceType != nullptr &&
                          request->lpstrElementName != nullptr;
    if (!complete) { return unknownParameter; }
    if (std::string(request->lpstrDeviceType) != "sequencer") { return unknownDeviceType; }
    const std::string fileName = request->lpstrElementName;
    std::string why;
    auto file = readRegularFile(fileName, largestPiece, why);
    if (!file) { return refuse(fileNotFound, "cannot read " + fileName + ": " + why); }
    if (!isPlayableMidi(*file)) {
        return refuse(badFile, fileName + " is not a complete MIDI file of up to an hour");
    }
    if (!startSound()) { return deviceNotReady; }
    auto soundFonts = findSoundFonts(why);
    if (soundFonts.empty()) { return refuse(deviceNotReady, why); }
    close();
    open = {++lastDevice, std::move(*file), std::move(soundFonts), nullptr};
    request->wDeviceID = open.device;
    return 0;
}

MCIERROR playPiece(DWORD_PTR flags, const MCI_PLAY_PARMS* request) {
    const bool notify = (flags & MCI_NOTIFY) != 0;
    if (notify && request == nullptr) { return unknownParameter; }
    if (!playMusic(open.file, open.soundFonts)) {
        return refuse(deviceNotReady, "its thread cannot be started");
    }
    open.listener = notify ? reinterpret_cast<HWND>(request->dwCallback) : nullptr;
    return 0;
}

MCIERROR reportStatus(DWORD_PTR flags, MCI_STATUS_PARMS* request) {
    const bool asksPort = (flags & MCI_STATUS_ITEM) != 0 && request != nullptr &&
                          request->dwItem == MCI_SEQ_STATUS_PORT;
    if (!asksPort) { return unknownParameter; }
    request->dwReturn = 0; // the first and only port
    return 0;
}

} // namespace

void updateSequencer() {
    for (const std::string& error : takeMusicErrors()) {
        logErrorOnce(error);
    }
    if (open.listener == nullptr || !isMusicFinished()) { return; }
    PostMessageA(open.listener, MM_MCINOTIFY, MCI_NOTIFY_SUCCESSFUL,
                 static_cast<LPARAM>(open.device));
    open.listener = nullptr;
}

void stopSequencer() {
    close();
    stopMusicStream();
}

MCIERROR WINAPI mciSendCommandA(MCIDEVICEID device, UINT command, DWORD_PTR flags,
                                DWORD_PTR parameters) {
    if (command == MCI_OPEN) {
        return openPiece(flags, reinterpret_cast<MCI_OPEN_PARMSA*>(parameters));
    }
    if (device == 0 || device != open.device) { return wrongDevice; }
    switch (command) {
    case MCI_CLOSE: return closePiece();
    case MCI_PLAY: return playPiece(flags, reinterpret_cast<MCI_PLAY_PARMS*>(parameters));
    case MCI_STATUS: return reportStatus(flags, reinterpret_cast<MCI_STATUS_PARMS*>(parameters));
    default: return unknownCommand;
    }
}
