#include "app/resources.h"

#include <string>

#include "app/bitmap_file.h"
#include "data/best_times.h"
#include "data/file_error.h"
#include "data/font.h"
#include "data/level_file.h"
#include "data/mip_chain.h"
#include "data/printable.h"
#include "platform/windows_api.h"
#include "render/textures.h"
#include "sim/level.h"
#include "state/game.h"

namespace {

bool refuse(const std::string& text) {
    MessageBoxA(nullptr, text.c_str(), fileErrorCaption, MB_OK);
    return false;
}

// Uploads the texture at once: it stays even when a later part of the level file is refused.
bool loadGroundTexture(Level& into, const char* baseName, std::string& picture) {
    if (!readMipChain(groundChain, baseName, readBitmap, into.texturePixels[0], picture)) {
        return false;
    }
    uploadGroundTexture(into);
    return true;
}

std::string reasonOf(const LevelFault& fault) {
    switch (fault.cause) {
    case LevelFault::Cause::FileUnreadable:
    case LevelFault::Cause::FileCutOff: return "it cannot be read: " + fault.token;
    default: return "this level is refused; glorbix-level check says why";
    }
}

// Shows a message for the causes that have one. Returns false; startNextLevel then shows one for
// all causes.
bool refuseLevel(const std::string& fileName, const LevelFault& fault) {
    using Cause = LevelFault::Cause;
    logFileError(fileName, fault.place, reasonOf(fault));
    switch (fault.cause) {
    case Cause::FileUnreadable: return refuse(printable(fileName) + "file not found");
    case Cause::UnknownToken:
        return refuse(printable(fileName) + " contains a unknown token" + fault.token);
    case Cause::PictureUnreadable: return refuse(fault.token);
    case Cause::HoleCountInvalid:
    case Cause::OutOfMemory: return refuse("out of memory");
    case Cause::EndMissing: return refuse("expected .end");
    default: return false;
    }
}

} // namespace

bool Level::load(const char* fileName, Marble& playerMarble) {
    LevelFileReport report;
    if (readLevelFile(fileName, *this, playerMarble, loadGroundTexture, report)) { return true; }
    return refuseLevel(fileName, report.fault);
}

bool Font::load(const char* baseName, const char* metricsName) {
    std::string picture;
    if (!readMipChain(fontChain, baseName, readBitmap, imageLevels[0], picture)) {
        return refuse(picture);
    }
    uploadFontTexture(*this);
    if (!readMetrics(metricsName)) {
        logFileError(metricsName, "these are not the metrics of a font");
        return false;
    }
    loaded = true;
    return true;
}

bool loadBestTimes() {
    if (readBestTimes()) { return true; }
    MessageBoxA(nullptr, "Creating new highScores file", "Notice", MB_OK);
    setDefaultBestTimes();
    return true;
}
