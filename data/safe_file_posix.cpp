#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "data/safe_file.h"

namespace {

constexpr int maxLinks = 40; // symbolic links followed; a longer chain is taken for a loop
constexpr int writeThisFile = O_WRONLY | O_NOFOLLOW | O_CLOEXEC;

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
        return closing < 0 || ::close(closing) == 0;
    }
};

enum class Outcome {
    Done,
    Failed,
    NotPossible, // in this folder; the old file may still be overwritten
};

// Returns the end of a chain of symbolic links; the file need not exist.
std::string targetOf(const std::string& name) {
    std::filesystem::path file = name;
    std::error_code error;
    for (int links = 0; links < maxLinks; ++links) {
        const std::filesystem::path next = std::filesystem::read_symlink(file, error);
        if (error) { break; }
        file = file.parent_path() / next;
    }
    return file.string();
}

// Stores the system's reason for the call that has just failed. Returns false.
bool fail(std::string& why) {
    why = std::strerror(errno);
    return false;
}

bool writeAt(const Descriptor& file, std::string_view bytes, off_t offset, std::string& why) {
    while (!bytes.empty()) {
        const ssize_t written = pwrite(file.number, bytes.data(), bytes.size(), offset);
        if (written < 0 && errno == EINTR) { continue; }
        if (written <= 0) { return fail(why); }
        bytes.remove_prefix(static_cast<std::size_t>(written));
        offset += written;
    }
    return true;
}

// Waits until the file is on the disk. File systems that cannot do that are accepted.
bool flush(const Descriptor& file, std::string& why) {
    return fsync(file.number) == 0 || errno == EINVAL || errno == ENOSYS || fail(why);
}

// Makes the new name durable. The contents are safe without it, so a failure is ignored.
void flushFolderOf(const std::string& name) {
    const std::string folder = std::filesystem::path(name).parent_path().string();
    const Descriptor opened(
        open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    std::string ignored;
    if (opened.isOpen()) { flush(opened, ignored); }
}

int createExclusive(const std::string& name, mode_t mode) {
    return open(name.c_str(), writeThisFile | O_CREAT | O_EXCL, mode);
}

int createReplacing(const std::string& name, mode_t mode) {
    const int file = createExclusive(name, mode);
    if (file >= 0 || errno != EEXIST || unlink(name.c_str()) != 0) { return file; }
    return createExclusive(name, mode);
}

// Only root may change the owner; otherwise the file stays the caller's, and its mode loses the
// setuid, setgid and sticky bits.
bool copyOwnerAndMode(const Descriptor& to, const struct stat& from) {
    const bool sameOwner = fchown(to.number, from.st_uid, from.st_gid) == 0;
    const mode_t mode = from.st_mode & (sameOwner ? 07777U : 0777U);
    return fchmod(to.number, mode) == 0;
}

// Writes the contents to a new file and flushes it. The file takes owner and mode of `old`, which
// is nullptr when there is no old file.
Outcome writeTemporary(const std::string& temporary, const struct stat* old,
                       std::string_view contents, std::string& why) {
    Descriptor file(createReplacing(temporary, old == nullptr ? 0666 : 0600));
    if (!file.isOpen() || (old != nullptr && !copyOwnerAndMode(file, *old))) {
        fail(why);
        return Outcome::NotPossible;
    }
    if (!writeAt(file, contents, 0, why) || !flush(file, why)) { return Outcome::Failed; }
    return file.close() || fail(why) ? Outcome::Done : Outcome::Failed;
}

Outcome replaceByRename(const std::string& name, const struct stat* old, std::string_view contents,
                        std::string& why) {
    const std::string temporary = name + ".new";
    Outcome outcome = writeTemporary(temporary, old, contents, why);
    if (outcome == Outcome::Done && rename(temporary.c_str(), name.c_str()) != 0) {
        fail(why);
        outcome = Outcome::NotPossible;
    }
    if (outcome == Outcome::Done) {
        flushFolderOf(name);
    } else {
        unlink(temporary.c_str());
    }
    return outcome;
}

// Extends the file with blanks to the new length. Returns false when they do not fit.
bool makeRoom(const Descriptor& file, off_t oldLength, off_t newLength, std::string& why) {
    if (newLength <= oldLength) { return true; }
    const std::string blanks(static_cast<std::size_t>(newLength - oldLength), ' ');
    if (writeAt(file, blanks, oldLength, why) && flush(file, why)) { return true; }
    if (ftruncate(file.number, oldLength) != 0) { why += "; blanks stay at its end"; }
    return false;
}

bool overwrite(const Descriptor& file, off_t oldLength, std::string_view contents,
               std::string& why) {
    const auto newLength = static_cast<off_t>(contents.size());
    if (!makeRoom(file, oldLength, newLength, why) || !writeAt(file, contents, 0, why)) {
        return false;
    }
    return (ftruncate(file.number, newLength) == 0 || fail(why)) && flush(file, why);
}

} // namespace

bool replaceFile(const std::string& name, std::string_view contents, std::string& why) {
    const std::string target = targetOf(name);
    std::error_code ignored;
    const std::filesystem::file_status type = std::filesystem::symlink_status(target, ignored);
    if (exists(type) && !is_regular_file(type)) {
        why = "it is not a file";
        return false;
    }
    const Descriptor old(open(target.c_str(), writeThisFile | O_NONBLOCK));
    if (!old.isOpen() && errno == ENOENT) {
        return replaceByRename(target, nullptr, contents, why) == Outcome::Done;
    }
    struct stat status = {};
    if (!old.isOpen() || fstat(old.number, &status) != 0) { return fail(why); }
    const Outcome outcome = replaceByRename(target, &status, contents, why);
    return outcome == Outcome::Done ||
           (outcome == Outcome::NotPossible && overwrite(old, status.st_size, contents, why));
}
