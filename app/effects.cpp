#include "app/effects.h"

#include "platform/windows_api.h"

void playEffect(const char* fileName) {
    PlaySoundA(fileName, nullptr, SND_ASYNC | SND_FILENAME);
}
