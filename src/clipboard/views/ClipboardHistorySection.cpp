#include "clipboard/views/ClipboardHistorySection.h"

#include "ui/controls/Buttons.h"

#include <QLocale>

#include <algorithm>
#include <limits>

namespace brindlex {
namespace {

/// How many decimals a size has.
constexpr int sizePrecision = 1;

QString sizeText(const QLocale& locale, std::uintmax_t bytes)
{
    constexpr auto most = static_cast<std::uintmax_t>(std::numeric_limits<qint64>::max());
    return locale.formattedDataSize(static_cast<qint64>(std::min(bytes, most)), sizePrecision);
}

} // namespace

ClipboardHistorySection::ClipboardHistorySection(Page& page, const ViewContext& context,
    ClipboardSettings& settings,
    const std::function<void(const std::filesystem::path&)>& openFolder)
    : context_(context), settings_(settings),
      amount_(new TextLabel(context.theme, TextRole::value, {})),
      clear_(new ClipboardClearRow(context, [this] { settings_.clear(); }))
{
    auto& card = page.section(context.text<"clipboardTab.history">());
    card.setting(context.text<"clipboardTab.savedItems">(), {}, amount_);
    card.setting(context.text<"clipboardTab.folder">(),
        QString::fromStdString(settings.folderName()),
        makeButton(context.theme, ButtonRole::plain, context.text<"clipboardTab.openFolder">(),
            [this, openFolder] { openFolder(settings_.folder()); }));
    card.add(clear_);
    show();
}

void ClipboardHistorySection::show()
{
    const auto& measure = settings_.historyMeter().measure().value();
    amount_->setText(amount(measure));
    clear_->show(measure.items > 0);
}

/// An index without items takes some bytes, too, of which nobody wants to know.
QString ClipboardHistorySection::amount(const ClipboardHistoryMeasure& measure) const
{
    if (measure.items == 0)
        return context_.text<"clipboard.empty">();
    const QLocale locale(QString::fromStdString(context_.strings.language()));
    auto items = locale.toString(static_cast<qulonglong>(measure.items));
    if (!measure.bytes)
        return items;
    return items + QStringLiteral(" · ") + sizeText(locale, *measure.bytes);
}

} // namespace brindlex
