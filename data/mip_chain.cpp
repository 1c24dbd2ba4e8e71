#include "data/mip_chain.h"

bool readMipChain(const MipChain& chain, const std::string& baseName, PictureReader readPicture,
                  std::uint8_t* slots, std::string& picture) {
    picture = baseName;
    if (baseName.size() >= mipBaseNameCapacity) { return false; }
    const std::size_t slot = slotSize(chain);
    for (int k = 0; k < chain.levels; ++k) {
        picture = mipFileName(baseName, k);
        std::uint8_t* pixels = slots + static_cast<std::size_t>(k) * slot;
        if (!readPicture(picture.c_str(), pixels, static_cast<std::int32_t>(slot))) {
            return false;
        }
    }
    return true;
}
