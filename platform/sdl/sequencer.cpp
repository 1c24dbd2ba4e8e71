#include "platform/sdl/sequencer.h"

#include <chrono>
#include <fstream>
#include <future>
#include <iterator>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <SDL.h>
#include <SDL_mixer.h>

#include "platform/sdl/errors.h"
#include "platform/sdl/messages.h"
#include "platform/sdl/midi_file.h"
#include "platform/sdl/sound.h"
#include "platform/sdl/sound_font.h"
#include "platform/windows_api.h"

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

// Error codes of the media system.
constexpr MCIERROR wrongDevice = 257;
constexpr MCIERROR unknownCommand = 261;
constexpr MCIERROR unknownDeviceType = 263;
constexpr MCIERROR fileNotFound = 275;
constexpr MCIERROR deviceNotReady = 276;
constexpr MCIERROR unknownParameter = 258;
constexpr MCIERROR badFile = 296;

// The game closes a piece as soon as it hears of its end, so the last notes get time to fade.
constexpr Seconds fadeTime{0.5};

// The mixer's full volume drives the synthesizer into clipping; at a quarter the effects stay on top.
constexpr int musicVolume = MIX_MAX_VOLUME / 4;

struct MusicDeleter {
    void operator()(Mix_Music* music) const { Mix_FreeMusic(music); }
};

using Music = std::unique_ptr<Mix_Music, MusicDeleter>;

struct Piece {
    MCIDEVICEID device = 0; // 0: none
    std::string fileName;
    Seconds length{0.0};
    std::future<Music> loading; // the instruments take up to a second, so not while the game waits
    Music music;
    HWND listener = nullptr; // who hears of the end; null: nobody
    bool wanted = false;     // to play, as soon as it is loaded
    std::optional<Clock::time_point> end;
};

Piece open;
Piece last; // stays loaded: the next piece shares its instruments
MCIDEVICEID lastDevice = 0;

Music load(const std::string& fileName) {
    static std::mutex oneAtATime;
    const std::lock_guard lock(oneAtATime);
    Music music(Mix_LoadMUS(fileName.c_str()));
    if (!music) complain("cannot play " + fileName + ": " + SDL_GetError());
    return music;
}

std::optional<std::vector<std::uint8_t>> readWhole(const std::string& fileName) {
    std::ifstream file(fileName, std::ios::binary);
    if (!file) return {};
    return std::vector<std::uint8_t>(std::istreambuf_iterator<char>(file), {});
}

bool findInstruments() {
    const std::string font = findSoundFont();
    if (font.empty()) {
        complainOnce("no music: no General MIDI sound font is installed");
        return false;
    }
    return Mix_SetSoundFonts(font.c_str()) != 0;
}

void close() {
    if (open.device == 0) return;
    if (open.music) Mix_HaltMusic();
    withdrawMessages(MM_MCINOTIFY, MCI_NOTIFY_SUCCESSFUL);
    last = std::move(open);
    open = {};
}

// A piece that the synthesizer refuses lasts as long, in silence.
void start() {
    if (open.loading.valid()) open.music = open.loading.get();
    Mix_VolumeMusic(musicVolume);
    if (open.music && Mix_PlayMusic(open.music.get(), 1) != 0)
        complain("cannot play " + open.fileName + ": " + SDL_GetError());
    open.end = Clock::now() + std::chrono::duration_cast<Clock::duration>(open.length + fadeTime);
    open.wanted = false;
}

bool isLoaded() {
    return !open.loading.valid() ||
           open.loading.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

MCIERROR openPiece(DWORD_PTR flags, MCI_OPEN_PARMSA* request) {
    const bool complete = (flags & MCI_OPEN_TYPE) && (flags & MCI_OPEN_ELEMENT) && request &&
                          request->lpstrDeviceType && request->lpstrElementName;
    if (!complete) return unknownParameter;
    if (std::string(request->lpstrDeviceType) != "sequencer") return unknownDeviceType;
    const auto file = readWhole(request->lpstrElementName);
    if (!file) {
        complainOnce(std::string("no music: cannot read ") + request->lpstrElementName);
        return fileNotFound;
    }
    const std::optional<double> length = midiSeconds(*file);
    if (!length) {
        complainOnce(std::string("no music: ") + request->lpstrElementName +
                     " is not a complete MIDI file");
        return badFile;
    }
    if (!startSound() || !findInstruments()) return deviceNotReady;
    close();
    open.device = request->wDeviceID = ++lastDevice;
    open.fileName = request->lpstrElementName;
    open.length = Seconds(*length);
    open.loading = std::async(std::launch::async, load, open.fileName);
    return 0;
}

MCIERROR playPiece(DWORD_PTR flags, const MCI_PLAY_PARMS* request) {
    if ((flags & MCI_NOTIFY) && !request) return unknownParameter;
    open.listener = (flags & MCI_NOTIFY) ? reinterpret_cast<HWND>(request->dwCallback) : nullptr;
    open.wanted = true;
    open.end.reset();
    return 0;
}

MCIERROR tellStatus(DWORD_PTR flags, MCI_STATUS_PARMS* request) {
    const bool asksPort =
        (flags & MCI_STATUS_ITEM) && request && request->dwItem == MCI_SEQ_STATUS_PORT;
    if (!asksPort) return unknownParameter;
    request->dwReturn = 0; // the first and only port
    return 0;
}

} // namespace

void runSequencer() {
    if (open.wanted && isLoaded()) start();
    if (!open.listener || !open.end || Clock::now() < *open.end) return;
    PostMessageA(open.listener, MM_MCINOTIFY, MCI_NOTIFY_SUCCESSFUL,
                 static_cast<LPARAM>(open.device));
    open.listener = nullptr;
}

void stopSequencer() {
    close();
    last = {};
}

MCIERROR WINAPI mciSendCommandA(MCIDEVICEID device, UINT command, DWORD_PTR flags,
                                DWORD_PTR parameters) {
    if (command == MCI_OPEN)
        return openPiece(flags, reinterpret_cast<MCI_OPEN_PARMSA*>(parameters));
    if (device == 0 || device != open.device) return wrongDevice;
    switch (command) {
    case MCI_CLOSE: close(); return 0;
    case MCI_PLAY: return playPiece(flags, reinterpret_cast<MCI_PLAY_PARMS*>(parameters));
    case MCI_STATUS: return tellStatus(flags, reinterpret_cast<MCI_STATUS_PARMS*>(parameters));
    default: return unknownCommand;
    }
}
