#include "clipboard/views/ClipboardRowPictures.h"

#include "clipboard/ClipboardCategory.h"
#include "clipboard/ClipboardHistoryStore.h"

#include <QImageReader>
#include <QPixmap>

#include <utility>

namespace brindlex {
namespace {

/// Null for what is no picture. What would be waited for, such as a pipe, is not opened.
QImage smallPictureIn(const std::filesystem::path& file)
{
    std::error_code problem;
    if (!std::filesystem::is_regular_file(file, problem))
        return {};
    constexpr QSize most(ClipboardRowPictures::edge, ClipboardRowPictures::edge);
    QImageReader reader(QString::fromStdString(file.string()));
    reader.setAutoTransform(true);
    const auto size = reader.size();
    const bool isLarge = size.width() > most.width() || size.height() > most.height();
    if (size.isValid() && isLarge)
        reader.setScaledSize(size.scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return reader.read();
}

} // namespace

QIcon ClipboardRowPictures::of(const ClipboardItem& item)
{
    if (const auto blob = abilities_.store.blobURL(item))
        return small(*blob);
    const auto& files = item.fileURLStrings;
    if (files && !files->empty())
        return isImagePath(files->front()) ? small(files->front()) : QIcon();
    return item.sourceBundleID ? ofApplication(*item.sourceBundleID) : QIcon();
}

QIcon ClipboardRowPictures::small(const std::filesystem::path& file)
{
    const auto name = file.string();
    const auto known = pictures_.find(name);
    if (known != pictures_.end())
        return known->second;
    keep(name);
    make(name);
    return {};
}

QIcon ClipboardRowPictures::ofApplication(const std::string& bundleID)
{
    const auto known = applications_.find(bundleID);
    if (known != applications_.end())
        return known->second;
    return applications_.emplace(bundleID, abilities_.applicationIcon(bundleID)).first->second;
}

void ClipboardRowPictures::make(const std::string& file)
{
    abilities_.queue.post(
        [this, file, alive = lifetime_.watch(), &mainThread = abilities_.mainThread] {
            mainThread.post([this, file, alive, picture = smallPictureIn(file)] {
                if (alive.expired() || picture.isNull() || !pictures_.contains(file))
                    return;
                pictures_[file] = QIcon(QPixmap::fromImage(picture));
                made_.notify();
            });
        });
}

/// There is a place for it from now on.
void ClipboardRowPictures::keep(const std::string& file)
{
    pictures_.emplace(file, QIcon());
    oldestFirst_.push_back(file);
    if (oldestFirst_.size() <= mostPictures)
        return;
    pictures_.erase(oldestFirst_.front());
    oldestFirst_.pop_front();
}

} // namespace brindlex
