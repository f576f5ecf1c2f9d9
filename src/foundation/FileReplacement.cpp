#include "foundation/FileReplacement.h"

#include "foundation/FileHandle.h"
#include "foundation/Uuid.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace brindlex {
namespace {

/// The file that the name leads to in the end; where the links lead in a circle, the system's own
/// refusal follows from the use of the result.
std::filesystem::path linkTarget(std::filesystem::path file)
{
    constexpr int mostLinks = 40;
    for (int links = 0; links < mostLinks; ++links) {
        std::error_code isNoLink;
        const auto target = std::filesystem::read_symlink(file, isNoLink);
        if (isNoLink)
            break;
        file = file.parent_path() / target;
    }
    return file;
}

/// A file beside the one to be replaced that only its holder writes to, and that goes away with its
/// holder unless it has become the file.
class TemporaryFile {
public:
    TemporaryFile(const FileHandle& folder, const std::string& wantedName) : folder_(folder)
    {
        if (takeOver("." + wantedName + ".tmp"))
            return;
        // In use by another writer, not to be trusted, or too long a name.
        name_ = "." + Uuid::random().text() + ".tmp";
        handle_ = open(O_EXCL);
    }

    ~TemporaryFile()
    {
        if (handle_)
            ::unlinkat(folder_.descriptor(), name_.c_str(), 0);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    explicit operator bool() const { return static_cast<bool>(handle_); }
    const FileHandle& handle() const { return handle_; }

    bool become(const std::string& name)
    {
        const int folder = folder_.descriptor();
        if (::renameat(folder, name_.c_str(), folder, name.c_str()) != 0)
            return false;
        handle_.close();
        return true;
    }

private:
    FileHandle open(int flags) const
    {
        return FileHandle(::openat(folder_.descriptor(), name_.c_str(),
            O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | flags, 0600));
    }

    /// Makes the file, or takes the one that a killed writer left: one that nobody has locked. Its
    /// lock has to be held while the name still leads to it, since the writer that held it before
    /// may have renamed it meanwhile.
    bool takeOver(const std::string& name)
    {
        name_ = name;
        handle_ = open(0);
        if (handle_ && ::flock(handle_.descriptor(), LOCK_EX | LOCK_NB) == 0 && isOwn()
            && ::ftruncate(handle_.descriptor(), 0) == 0)
            return true;
        handle_.close();
        return false;
    }

    bool isOwn() const
    {
        struct stat opened = {};
        struct stat named = {};
        return ::fstat(handle_.descriptor(), &opened) == 0
            && ::fstatat(folder_.descriptor(), name_.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0
            && opened.st_dev == named.st_dev && opened.st_ino == named.st_ino
            && S_ISREG(opened.st_mode) && opened.st_nlink == 1 && opened.st_uid == ::geteuid();
    }

    const FileHandle& folder_;
    std::string name_;
    FileHandle handle_;
};

/// Gives the new file the owner and the permissions of the old one. Where the owner cannot be given
/// on, nobody but the new owner gets access.
bool takeAfter(const struct stat& old, int descriptor)
{
    mode_t permissions = old.st_mode & 07777;
    struct stat made = {};
    if (::fstat(descriptor, &made) != 0)
        return false;
    const bool isSameOwner = made.st_uid == old.st_uid && made.st_gid == old.st_gid;
    if (!isSameOwner && ::fchown(descriptor, old.st_uid, old.st_gid) != 0)
        permissions &= S_IRWXU;
    return ::fchmod(descriptor, permissions) == 0;
}

} // namespace

Result<Done, FileProblem> replaceFile(
    const std::filesystem::path& file, std::string_view content, std::filesystem::perms permissions)
{
    const auto target = linkTarget(file);
    const auto name = target.filename().string();
    const auto folderPath = target.has_parent_path() ? target.parent_path() : ".";
    const FileHandle folder(::open(folderPath.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder)
        return fail(FileProblem::ofSystem(file, errno));

    struct stat old = {};
    const bool isNew = ::fstatat(folder.descriptor(), name.c_str(), &old, AT_SYMLINK_NOFOLLOW) != 0;
    if (isNew && errno != ENOENT)
        return fail(FileProblem::ofSystem(file, errno));
    if (!isNew && !S_ISREG(old.st_mode))
        return fail(FileProblem::notARegularFile(file));

    TemporaryFile temporary(folder, name);
    if (!temporary)
        return fail(FileProblem::ofSystem(file, errno));
    const int made = temporary.handle().descriptor();
    if (!temporary.handle().writeAll(content) || ::fsync(made) != 0)
        return fail(FileProblem::ofSystem(file, errno));
    // Last, as a temporary file that may not be written to could not be taken over.
    const bool hasPermissions
        = isNew ? ::fchmod(made, static_cast<mode_t>(permissions)) == 0 : takeAfter(old, made);
    if (!hasPermissions || !temporary.become(name))
        return fail(FileProblem::ofSystem(file, errno));
    // Without this a loss of power may bring back the old content, which is whole as well; not
    // every file system can do it.
    ::fsync(folder.descriptor());
    return Done{};
}

} // namespace brindlex
