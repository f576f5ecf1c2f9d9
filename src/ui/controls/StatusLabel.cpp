#include "ui/controls/StatusLabel.h"

#include <QHBoxLayout>
#include <QPainter>

namespace brindlex {
namespace {

constexpr int dotSize = 8;
constexpr int gap = 7;

} // namespace

class StatusLabel::Dot : public QWidget {
public:
    explicit Dot(const Theme& theme) : theme_(theme) { setFixedSize(dotSize, dotSize); }

    void setToken(Token token)
    {
        token_ = token;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme_.colour(token_));
        painter.drawEllipse(rect());
    }

private:
    const Theme& theme_;
    Token token_ = &ThemeTokens::edge;
};

StatusLabel::StatusLabel(const Theme& theme, QWidget* parent)
    : QWidget(parent), dot_(new Dot(theme)), words_(new TextLabel(theme, TextRole::body, {}))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(gap);
    layout->addWidget(dot_);
    layout->addWidget(words_, 1);
}

void StatusLabel::show(Token dot, const QString& words)
{
    dot_->setToken(dot);
    words_->setText(words);
}

} // namespace brindlex
