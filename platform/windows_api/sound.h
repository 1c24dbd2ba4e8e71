// Sound effects, and the sequencer that plays the music.
#pragma once

#include "platform/windows_api/types.h"

// Sound

inline constexpr DWORD SND_ASYNC = 0x00001;
inline constexpr DWORD SND_FILENAME = 0x20000;

// Plays a WAVE file and returns at once. A sound that is still playing is cut off. Returns FALSE
// when the file cannot be played; the game ignores that.
BOOL WINAPI PlaySoundA(const char* fileName, HMODULE module, DWORD flags);

// Plays one of the system's sounds; an unknown type plays the default one.
BOOL WINAPI MessageBeep(UINT type);

// The MIDI sequencer

inline constexpr UINT MCI_OPEN = 0x0803;
inline constexpr UINT MCI_CLOSE = 0x0804;
inline constexpr UINT MCI_PLAY = 0x0806;
inline constexpr UINT MCI_STATUS = 0x0814;

inline constexpr DWORD_PTR MCI_NOTIFY = 0x0001;
inline constexpr DWORD_PTR MCI_STATUS_ITEM = 0x0100;
inline constexpr DWORD_PTR MCI_OPEN_ELEMENT = 0x0200;
inline constexpr DWORD_PTR MCI_OPEN_TYPE = 0x2000;
inline constexpr DWORD MCI_SEQ_STATUS_PORT = 0x4003;
inline constexpr WPARAM MCI_NOTIFY_SUCCESSFUL = 1; // the piece has played to its end
inline constexpr WPARAM MCI_NOTIFY_ABORTED = 4;    // it was closed before

// The system packs these records.
#pragma pack(push, 1)
struct MCI_OPEN_PARMSA {
    DWORD_PTR dwCallback;
    MCIDEVICEID wDeviceID;        // out: the device that was opened
    const char* lpstrDeviceType;  // "sequencer"
    const char* lpstrElementName; // the MIDI file
    const char* lpstrAlias;
};

struct MCI_STATUS_PARMS {
    DWORD_PTR dwCallback;
    DWORD_PTR dwReturn; // out
    DWORD dwItem;
    DWORD dwTrack;
};

struct MCI_PLAY_PARMS {
    DWORD_PTR dwCallback; // the window to notify
    DWORD dwFrom;
    DWORD dwTo;
};
#pragma pack(pop)

// Sends a command to a media device; `parameters` is the address of the command's record. Returns 0
// or an error code. After MCI_PLAY with MCI_NOTIFY, MM_MCINOTIFY is posted to the window once, with
// the device as its lParam: with MCI_NOTIFY_SUCCESSFUL when the piece has played to its end, or
// with MCI_NOTIFY_ABORTED before MCI_CLOSE returns when it is closed earlier. The game does not
// look at the code: it clears Game.musicPlaying with the close, and handles this message before any
// that it posts later.
MCIERROR WINAPI mciSendCommandA(MCIDEVICEID device, UINT command, DWORD_PTR flags,
                                DWORD_PTR parameters);
