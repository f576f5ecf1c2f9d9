#include "platform/linux/files/FollowedFile.h"

#include "foundation/FileReading.h"

#include <utility>

namespace brindlex {

FollowedFile::FollowedFile(std::filesystem::path file, std::size_t limit, Handler handler)
    : file_(std::move(file)), limit_(limit), handler_(std::move(handler))
{
    watch();
}

void FollowedFile::watch()
{
    const auto folder = file_.parent_path();
    const auto watchFolder = [&] {
        folder_.emplace(folder, [this](const std::string& name) {
            if (name.empty())
                watch();
            else if (name == file_.filename())
                read();
        });
        return folder_->isWatching();
    };
    if (!watchFolder()) {
        folderAbove_.emplace(folder.parent_path(), [this](const std::string& name) {
            if (name.empty() || name == file_.parent_path().filename())
                watch();
        });
        // It may have come meanwhile.
        watchFolder();
    }
    if (folder_->isWatching())
        folderAbove_.reset();
    read();
}

void FollowedFile::read()
{
    const auto content = readFile(file_, limit_);
    handler_(content && *content ? **content : std::string());
}

} // namespace brindlex
