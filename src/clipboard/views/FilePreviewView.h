#pragma once

#include "ui/controls/ViewContext.h"

#include <QSize>
#include <QWidget>

#include <filesystem>
#include <functional>
#include <vector>

namespace brindlex {

/// What is in files, at one look: pictures as large as they are or as there is room, the beginning
/// of texts, and of all others what they are. Several stand side by side, and a count for those
/// that have no room.
class FilePreviewView : public QWidget {
public:
    /// How many files are shown themselves.
    static constexpr std::size_t mostPanes = 4;

    /// What a file is called in place of its name; empty where it keeps that.
    using Naming = std::function<QString(const std::filesystem::path& file)>;

    /// As large as it has to be, and no larger than `most`. Waits for the disk.
    FilePreviewView(const ViewContext& context, const std::vector<std::filesystem::path>& files,
        const QSize& most, Naming naming = {});

private:
    QString name(const std::filesystem::path& file) const;
    QWidget* makePane(
        const ViewContext& context, const std::filesystem::path& file, const QSize& most);
    QWidget* makeContent(
        const ViewContext& context, const std::filesystem::path& file, const QSize& most);
    QWidget* makeCaption(const ViewContext& context, const std::filesystem::path& file);

    const Naming naming_;
};

} // namespace brindlex
