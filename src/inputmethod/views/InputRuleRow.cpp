#include "inputmethod/views/InputRuleRow.h"

#include "inputmethod/views/InputSourceOptions.h"
#include "ui/controls/TextSize.h"

namespace brindlex {
namespace {

/// Of all choosers in a list.
constexpr int chooserWidth = 168;

} // namespace

InputRuleRow::InputRuleRow(const ViewContext& context, const InputMethodSettings& settings,
    const QIcon& picture, int pictureSize, const QString& name, const Actions& actions)
    : Row(context.theme), context_(context), settings_(settings),
      chooser_(new Chooser(context.theme,
          name + QStringLiteral(": ") + context.text<"inputMethod.smart.header.inputSource">(),
          actions.choose))
{
    followTextSize(*chooser_, [this] { chooser_->setFixedWidth(grownWithText(chooserWidth)); });
    Row::picture(picture, pictureSize)
        .words(name)
        .end(chooser_)
        .removable(context.text<"controls.remove">() + QStringLiteral(": ") + name, actions.remove);
}

void InputRuleRow::show(const std::string& inputSourceID, const QString& words)
{
    const bool isMissing = settings_.isMissing(inputSourceID);
    chooser_->show(
        inputSourceOptions(settings_, inputSourceID), optionOf(settings_, inputSourceID));
    chooser_->setBad(isMissing);
    setSecond(isMissing ? QString() : words);
    setWarning(isMissing ? context_.text<"inputMethod.rules.missingSource">() : QString());
}

} // namespace brindlex
