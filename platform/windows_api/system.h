// The clock, reading files, and the texts of errors.
#pragma once

#include <cstdarg>

#include "platform/windows_api/types.h"

// Clock

union LARGE_INTEGER {
    LONGLONG QuadPart;
};

// Give the counts per second, and the present count. The count never falls, but two calls may give
// the same one, and a tick then has no length.
BOOL WINAPI QueryPerformanceFrequency(LARGE_INTEGER* frequency);
BOOL WINAPI QueryPerformanceCounter(LARGE_INTEGER* counter);

// Files

inline constexpr DWORD GENERIC_READ = 0x80000000;
inline constexpr DWORD OPEN_EXISTING = 3;
inline constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(~static_cast<UINT_PTR>(0));

struct SECURITY_ATTRIBUTES;
struct OVERLAPPED;

// Opens a file for reading. Returns INVALID_HANDLE_VALUE on failure.
HANDLE WINAPI CreateFileA(const char* fileName, DWORD access, DWORD share,
                          SECURITY_ATTRIBUTES* security, DWORD creation, DWORD attributes,
                          HANDLE templateFile);

// Reads up to `wanted` bytes. At the end of the file it returns TRUE with fewer bytes, or none.
BOOL WINAPI ReadFile(HANDLE file, void* buffer, DWORD wanted, DWORD* got, OVERLAPPED* overlapped);
BOOL WINAPI CloseHandle(HANDLE file);

// Errors

inline constexpr DWORD FORMAT_MESSAGE_ALLOCATE_BUFFER = 0x0100;
inline constexpr DWORD FORMAT_MESSAGE_FROM_SYSTEM = 0x1000;
inline constexpr WORD LANG_NEUTRAL = 0;
inline constexpr WORD SUBLANG_DEFAULT = 1;

constexpr DWORD MAKELANGID(WORD language, WORD subLanguage) {
    return static_cast<DWORD>(subLanguage) << 10 | language;
}

// Returns the code of the last failure on this thread.
DWORD WINAPI GetLastError();

// With the two flags above: stores the address of a new text for the error, at `*(char**)buffer`,
// and returns its length, 0 on failure. LocalFree releases the text and returns null.
DWORD WINAPI FormatMessageA(DWORD flags, const void* source, DWORD error, DWORD language,
                            char* buffer, DWORD size, va_list* arguments);
HLOCAL WINAPI LocalFree(HLOCAL memory);
