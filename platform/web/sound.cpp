#include "platform/common/loudness.h"
#include "platform/web/page_calls.h"
#include "platform/windows_api.h"

BOOL WINAPI PlaySoundA(const char* fileName, HMODULE, DWORD flags) {
    const DWORD needed = SND_ASYNC | SND_FILENAME;
    if (fileName == nullptr || (flags & needed) != needed) { return FALSE; }
    return pagePlayEffect(fileName, effectVolume) != 0 ? TRUE : FALSE;
}

BOOL WINAPI MessageBeep(UINT) {
    const double volume = effectVolume * beepVolume;
    return pagePlayBeep(beepFrequency, beepLength, beepAttack, volume) != 0 ? TRUE : FALSE;
}
