#include <new>

#include "fakes/trace.h"

namespace {

constexpr std::size_t wholeMemory = 1 << 30;

std::size_t smallestFailing = 0;
int untilFailure = 0; // 0: none is to fail

bool failsNow(std::size_t bytes) {
    if (bytes > wholeMemory) { return true; }
    return untilFailure > 0 && bytes >= smallestFailing && --untilFailure == 0;
}

} // namespace

void failAllocation(std::size_t bytes, int nth) {
    smallestFailing = bytes;
    untilFailure = nth;
}

void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
    return failsNow(bytes) ? nullptr : ::operator new(bytes);
}

void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept {
    return failsNow(bytes) ? nullptr : ::operator new[](bytes);
}
