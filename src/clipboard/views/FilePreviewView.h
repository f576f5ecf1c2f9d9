#pragma once

#include "ui/controls/ViewContext.h"

#include <QSize>
#include <QWidget>

#include <filesystem>
#include <vector>

namespace brindlex {

/// What is in files, at one look: pictures as large as they are or as there is room, the beginning
/// of texts, and of all others what they are. Several stand side by side, and a count for those
/// that have no room.
class FilePreviewView : public QWidget {
public:
    /// How many files are shown themselves.
    static constexpr std::size_t mostPanes = 4;

    /// As large as it has to be, and no larger than `most`. Waits for the disk.
    FilePreviewView(const ViewContext& context, const std::vector<std::filesystem::path>& files,
        const QSize& most);

private:
    QWidget* makePane(
        const ViewContext& context, const std::filesystem::path& file, const QSize& most);
    QWidget* makeContent(
        const ViewContext& context, const std::filesystem::path& file, const QSize& most);
    QWidget* makeCaption(const ViewContext& context, const std::filesystem::path& file);
};

} // namespace brindlex
