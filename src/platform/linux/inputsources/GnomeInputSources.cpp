#include "platform/linux/inputsources/GnomeInputSources.h"

#include "platform/InputSourceIdentifiers.h"

#include <QProcess>

#include <algorithm>
#include <optional>
#include <utility>

namespace brindlex {
namespace {

/// The next text in quotes, which is cut off the front; nothing when there is none.
std::optional<std::string> takeQuoted(std::string_view& text)
{
    const auto begin = text.find('\'');
    const auto end = begin == text.npos ? text.npos : text.find('\'', begin + 1);
    if (end == text.npos)
        return {};
    std::string quoted(text.substr(begin + 1, end - begin - 1));
    text.remove_prefix(end + 1);
    return quoted;
}

/// The name of a layout's engine has a language in it, which GNOME does not know.
bool isFor(const IBusEngine& engine, const GnomeInputSource& source)
{
    const auto layout = layoutOfSource(engine.name);
    if (!layout)
        return source.kind == "ibus" && source.name == engine.name;
    const auto variant = layout->variant.empty() ? "" : "+" + layout->variant;
    return source.kind == "xkb" && source.name == layout->layout + variant;
}

} // namespace

std::vector<GnomeInputSource> gnomeInputSources(std::string_view text)
{
    std::vector<GnomeInputSource> sources;
    while (auto kind = takeQuoted(text)) {
        auto name = takeQuoted(text);
        if (!name)
            break;
        sources.push_back({std::move(*kind), std::move(*name)});
    }
    return sources;
}

QStringList enginesFor(
    const std::vector<GnomeInputSource>& sources, const std::vector<IBusEngine>& engines)
{
    QStringList names;
    for (const auto& source : sources) {
        const auto found = std::find_if(engines.begin(), engines.end(),
            [&](const IBusEngine& engine) { return isFor(engine, source); });
        if (found != engines.end())
            names.append(QString::fromStdString(found->name));
    }
    return names;
}

void readGnomeInputSources(
    QObject* context, std::function<void(const std::vector<GnomeInputSource>&)> handler)
{
    auto* reading = new QProcess(context);
    const auto done = [reading, handler = std::move(handler)] {
        reading->deleteLater();
        handler(gnomeInputSources(reading->readAllStandardOutput().toStdString()));
    };
    QObject::connect(reading, &QProcess::finished, context, done);
    QObject::connect(
        reading, &QProcess::errorOccurred, context, [done](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                done();
        });
    reading->start(
        QStringLiteral("dconf"), {QStringLiteral("read"), QLatin1String(gnomeInputSourcesKey)});
}

} // namespace brindlex
