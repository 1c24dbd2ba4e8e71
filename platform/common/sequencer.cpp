#include "platform/common/sequencer.h"

#include "platform/common/errors.h"
#include "platform/common/message_queue.h"
#include "platform/common/provider.h"

namespace {

// Error codes of mciSendCommandA.
constexpr MCIERROR wrongDevice = 257;
constexpr MCIERROR unknownParameter = 258;
constexpr MCIERROR unknownCommand = 261;
constexpr MCIERROR unknownDeviceType = 263;

MCIDEVICEID openDevice = 0; // 0: no piece is open
MCIDEVICEID lastDevice = 0;
HWND listener = nullptr; // gets MM_MCINOTIFY; null: no window

void notifyListener(WPARAM code) {
    PostMessageA(listener, MM_MCINOTIFY, code, static_cast<LPARAM>(openDevice));
    listener = nullptr;
}

MCIERROR closePiece() {
    const bool aborts = listener != nullptr && !isPieceOver();
    if (aborts) { notifyListener(MCI_NOTIFY_ABORTED); }
    closeSequencer();
    return 0;
}

MCIERROR openPiece(DWORD_PTR flags, MCI_OPEN_PARMSA* request) {
    const bool complete = (flags & MCI_OPEN_TYPE) != 0 && (flags & MCI_OPEN_ELEMENT) != 0 &&
                          request != nullptr && request->lpstrDeviceType != nullptr &&
                          request->lpstrElementName != nullptr;
    if (!complete) { return unknownParameter; }
    if (std::string(request->lpstrDeviceType) != "sequencer") { return unknownDeviceType; }
    const MCIERROR error = loadPiece(request->lpstrElementName);
    if (error != 0) { return error; }
    closeSequencer();
    openDevice = ++lastDevice;
    request->wDeviceID = openDevice;
    return 0;
}

MCIERROR playPiece(DWORD_PTR flags, const MCI_PLAY_PARMS* request) {
    const bool notify = (flags & MCI_NOTIFY) != 0;
    if (notify && request == nullptr) { return unknownParameter; }
    const MCIERROR error = startPiece();
    if (error != 0) { return error; }
    listener = notify ? reinterpret_cast<HWND>(request->dwCallback) : nullptr;
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

MCIERROR refuseMusic(MCIERROR error, const std::string& why) {
    logErrorOnce("no music: " + why);
    return error;
}

void closeSequencer() {
    stopPiece();
    removePostedMessages(MM_MCINOTIFY, MCI_NOTIFY_SUCCESSFUL);
    openDevice = 0;
    listener = nullptr;
}

void updateSequencer() {
    const bool over = isPieceOver();
    if (over && listener != nullptr) { notifyListener(MCI_NOTIFY_SUCCESSFUL); }
}

MCIERROR WINAPI mciSendCommandA(MCIDEVICEID device, UINT command, DWORD_PTR flags,
                                DWORD_PTR parameters) {
    if (command == MCI_OPEN) {
        return openPiece(flags, reinterpret_cast<MCI_OPEN_PARMSA*>(parameters));
    }
    if (device == 0 || device != openDevice) { return wrongDevice; }
    switch (command) {
    case MCI_CLOSE: return closePiece();
    case MCI_PLAY: return playPiece(flags, reinterpret_cast<MCI_PLAY_PARMS*>(parameters));
    case MCI_STATUS: return reportStatus(flags, reinterpret_cast<MCI_STATUS_PARMS*>(parameters));
    default: return unknownCommand;
    }
}
