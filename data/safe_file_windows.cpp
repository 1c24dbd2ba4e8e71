#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include "data/safe_file.h"

namespace {

namespace fs = std::filesystem;

constexpr int writeBinary = _O_WRONLY | _O_BINARY | _O_NOINHERIT;

// An open file, closed by the destructor.
struct Descriptor {
    int number;

    explicit Descriptor(int opened) : number(opened) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    bool isOpen() const { return number >= 0; }
    bool close() {
        const int closing = std::exchange(number, -1);
        return closing < 0 || _close(closing) == 0;
    }
};

enum class Outcome {
    Done,
    Failed,
    NotPossible, // in this folder; the old file may still be overwritten
};

// Stores the system's reason for the call that has just failed. Returns false.
bool fail(std::string& why) {
    why = std::strerror(errno);
    return false;
}

bool writeAt(const Descriptor& file, std::string_view bytes, std::int64_t offset,
             std::string& why) {
    if (_lseeki64(file.number, offset, SEEK_SET) < 0) { return fail(why); }
    while (!bytes.empty()) {
        const int written = _write(file.number, bytes.data(), static_cast<unsigned>(bytes.size()));
        if (written <= 0) { return fail(why); }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// Waits until the file is on the disk.
bool flush(const Descriptor& file, std::string& why) {
    return _commit(file.number) == 0 || fail(why);
}

// Writes the contents to a new file and flushes it.
Outcome writeTemporary(const std::string& temporary, std::string_view contents, std::string& why) {
    std::error_code ignored;
    fs::remove(temporary, ignored);
    Descriptor file(
        _open(temporary.c_str(), writeBinary | _O_CREAT | _O_EXCL, _S_IREAD | _S_IWRITE));
    if (!file.isOpen()) {
        fail(why);
        return Outcome::NotPossible;
    }
    if (!writeAt(file, contents, 0, why) || !flush(file, why)) { return Outcome::Failed; }
    return file.close() || fail(why) ? Outcome::Done : Outcome::Failed;
}

// Not possible while another program has the old file open.
Outcome replaceByRename(const std::string& name, std::string_view contents, std::string& why) {
    const std::string temporary = name + ".new";
    Outcome outcome = writeTemporary(temporary, contents, why);
    std::error_code error;
    if (outcome == Outcome::Done) {
        fs::rename(temporary, name, error);
        if (!error) { return Outcome::Done; }
        why = error.message();
        outcome = Outcome::NotPossible;
    }
    if (fs::is_regular_file(temporary, error)) { fs::remove(temporary, error); }
    return outcome;
}

// Extends the file with blanks to the new length. Returns false when they do not fit.
bool makeRoom(const Descriptor& file, std::int64_t oldLength, std::int64_t newLength,
              std::string& why) {
    if (newLength <= oldLength) { return true; }
    const std::string blanks(static_cast<std::size_t>(newLength - oldLength), ' ');
    if (writeAt(file, blanks, oldLength, why) && flush(file, why)) { return true; }
    if (_chsize_s(file.number, oldLength) != 0) { why += "; blanks stay at its end"; }
    return false;
}

bool overwrite(const std::string& name, std::string_view contents, std::string& why) {
    const Descriptor file(_open(name.c_str(), writeBinary));
    const std::int64_t oldLength = file.isOpen() ? _lseeki64(file.number, 0, SEEK_END) : -1;
    if (oldLength < 0) { return fail(why); }
    const auto newLength = static_cast<std::int64_t>(contents.size());
    if (!makeRoom(file, oldLength, newLength, why) || !writeAt(file, contents, 0, why)) {
        return false;
    }
    return (_chsize_s(file.number, newLength) == 0 || fail(why)) && flush(file, why);
}

} // namespace

bool replaceFile(const std::string& name, std::string_view contents, std::string& why) {
    std::error_code ignored;
    const fs::file_status type = fs::status(name, ignored);
    if (exists(type) && !is_regular_file(type)) {
        why = "it is not a file";
        return false;
    }
    const Outcome outcome = replaceByRename(name, contents, why);
    return outcome == Outcome::Done ||
           (outcome == Outcome::NotPossible && exists(type) && overwrite(name, contents, why));
}
