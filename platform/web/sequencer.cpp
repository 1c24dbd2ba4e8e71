// The MIDI sequencer. The page has no synthesizer: it plays recordings of the pieces, which were
// made with the program.

#include <string>

#include "platform/common/errors.h"
#include "platform/common/message_queue.h"
#include "platform/common/provider.h"
#include "platform/web/page_calls.h"
#include "platform/windows_api.h"

namespace {

// Error codes of mciSendCommandA.
constexpr MCIERROR wrongDevice = 257;
constexpr MCIERROR unknownParameter = 258;
constexpr MCIERROR unknownCommand = 261;
constexpr MCIERROR unknownDeviceType = 263;
constexpr MCIERROR fileNotFound = 275;

struct Piece {
    MCIDEVICEID device = 0; // 0: no piece is open
    std::string fileName;
    HWND listener = nullptr; // gets MM_MCINOTIFY; null: nobody
};

Piece opened;
MCIDEVICEID lastDevice = 0;

void close() {
    pageStopMusic();
    removePostedMessages(MM_MCINOTIFY, MCI_NOTIFY_SUCCESSFUL);
    opened = {};
}

MCIERROR closePiece() {
    const HWND listener = pageIsMusicOver() != 0 ? nullptr : opened.listener;
    const auto device = static_cast<LPARAM>(opened.device);
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
    if (pageHasPiece(fileName.c_str()) == 0) {
        logErrorOnce("no music: there is no recording of " + fileName);
        return fileNotFound;
    }
    close();
    opened = {++lastDevice, fileName, nullptr};
    request->wDeviceID = opened.device;
    return 0;
}

MCIERROR playPiece(DWORD_PTR flags, const MCI_PLAY_PARMS* request) {
    const bool notify = (flags & MCI_NOTIFY) != 0;
    if (notify && request == nullptr) { return unknownParameter; }
    pagePlayPiece(opened.fileName.c_str());
    opened.listener = notify ? reinterpret_cast<HWND>(request->dwCallback) : nullptr;
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
    if (opened.listener == nullptr || pageIsMusicOver() == 0) { return; }
    PostMessageA(opened.listener, MM_MCINOTIFY, MCI_NOTIFY_SUCCESSFUL,
                 static_cast<LPARAM>(opened.device));
    opened.listener = nullptr;
}

MCIERROR WINAPI mciSendCommandA(MCIDEVICEID device, UINT command, DWORD_PTR flags,
                                DWORD_PTR parameters) {
    if (command == MCI_OPEN) {
        return openPiece(flags, reinterpret_cast<MCI_OPEN_PARMSA*>(parameters));
    }
    if (device == 0 || device != opened.device) { return wrongDevice; }
    switch (command) {
    case MCI_CLOSE: return closePiece();
    case MCI_PLAY: return playPiece(flags, reinterpret_cast<MCI_PLAY_PARMS*>(parameters));
    case MCI_STATUS: return reportStatus(flags, reinterpret_cast<MCI_STATUS_PARMS*>(parameters));
    default: return unknownCommand;
    }
}
