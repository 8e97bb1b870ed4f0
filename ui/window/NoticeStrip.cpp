// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/NoticeStrip.h"

#include "core/mTraduction.h"
#include "ui/look/NameTip.h"
#include "ui/look/Picture.h"
#include "ui/look/Style.h"
#include "ui/skin/EnterKey.h"
#include "ui/text/Localisation.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QShortcut>
#include <QTextLayout>
#include <QTextOption>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 6;
constexpr int gap = 8;
constexpr int pictureSize = 16;
constexpr int crossSize = 20;
constexpr int mostLines = 2;

/// A button that Enter presses too, with the family's focus frame.
class StripButton : public QAbstractButton {
public:
    explicit StripButton(QWidget* parent) : QAbstractButton(parent) {
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_Hover);
    }

protected:
    void PaintFocus(QPainter& painter) const {
        if (!hasFocus())
            return;
        painter.setPen(QPen(Style::Colour::Border, 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    }

    bool event(QEvent* event) override { return enter_.Takes(*event, *this) || QAbstractButton::event(event); }

private:
    Skin::EnterKey enter_;
};

class Link : public StripButton {
public:
    using StripButton::StripButton;

    [[nodiscard]] QSize sizeHint() const override {
        const QFontMetrics metrics = fontMetrics();
        return {metrics.horizontalAdvance(text()) + 8, metrics.height() + 4};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        QFont underlined = font();
        underlined.setUnderline(true);
        painter.setFont(underlined);
        painter.setPen(underMouse() ? Style::Colour::Selection : Style::Colour::Link);
        painter.drawText(rect(), Qt::AlignCenter, text());
        PaintFocus(painter);
    }
};

class Cross : public StripButton {
public:
    using StripButton::StripButton;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (underMouse()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(Style::Colour::Hover);
            painter.drawRoundedRect(rect(), 3, 3);
        }
        painter.setPen(QPen(Style::Colour::Border, 1.6, Qt::SolidLine, Qt::RoundCap));
        const QRectF arms = QRectF(rect()).adjusted(6, 6, -6, -6);
        painter.drawLine(arms.topLeft(), arms.bottomRight());
        painter.drawLine(arms.topRight(), arms.bottomLeft());
        PaintFocus(painter);
    }
};

/// Breaks a text into two lines at most, the second one shortened where it doesn't hold the rest.
struct Lines {
    Lines(const QString& text, const QFont& font, int width) {
        const QString shown = QString(text).replace(u'\n', QChar::LineSeparator);
        QTextLayout layout(shown, font);
        QTextOption breaks;
        breaks.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere); // a path has no words
        layout.setTextOption(breaks);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            if (Texts.size() == mostLines) {
                Elided = true;
                break;
            }
            starts_ += line.textStart();
            Texts += shown.mid(line.textStart(), line.textLength());
        }
        layout.endLayout();
        for (qsizetype line = 0; line < Texts.size(); ++line) {
            const bool isLast = line == Texts.size() - 1;
            const QString rest = (isLast ? shown.mid(starts_[line]) : Texts[line]).simplified();
            Texts[line] = QFontMetrics(font).elidedText(rest, Qt::ElideRight, width);
        }
    }

    QStringList Texts;
    bool Elided = false;

private:
    QList<int> starts_;
};

/// Screen readers say an alert as soon as it shows.
QAccessibleInterface* MakeAlert(const QString& /*className*/, QObject* object) {
    auto* const strip = qobject_cast<NoticeStrip*>(object);
    return strip == nullptr ? nullptr : new QAccessibleWidget(strip, QAccessible::AlertMessage);
}

} // namespace

NoticeStrip::NoticeStrip(QWidget* parent) : QWidget(parent) {
    QAccessible::installFactory(MakeAlert); // a second time changes nothing
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    for (std::size_t link = 0; link < MostLinks; ++link) {
        links_.at(link) = new Link(this);
        links_.at(link)->setObjectName(u"lblNoticeLink_%1"_s.arg(link));
        connect(links_.at(link), &QAbstractButton::clicked, this, [this, link] { RunLink(link); });
    }
    cross_ = new Cross(this);
    cross_->setObjectName(u"cmdCloseNotice"_s);
    cross_->setFixedSize(crossSize, crossSize);
    connect(cross_, &QAbstractButton::clicked, this, &NoticeStrip::Close);
    escape_ = new QShortcut(Qt::Key_Escape, this);
    connect(escape_, &QShortcut::activated, this, &NoticeStrip::Close);
    connect(qApp, &QApplication::focusChanged, this, &NoticeStrip::FollowFocus);
    hide();
}

void NoticeStrip::ShowNotice(const Notice& notice) {
    if (notice.Text.isEmpty()) {
        Close();
        return;
    }
    notice_ = notice;
    notice_.Text = mTraduction::DisplayText(notice.Text);
    for (std::size_t link = 0; link < MostLinks; ++link) {
        const bool is = link < notice.Links.size();
        links_.at(link)->setText(is ? notice.Links[link].Text : QString());
        links_.at(link)->setVisible(is);
    }
    NameTip::Give(*cross_, mTraduction::GetText(u"Close"_s));
    setAccessibleName(notice_.Text);
    updateGeometry();
    Arrange();
    show();
    update();
    QAccessibleEvent told(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

void NoticeStrip::LeaveEscape() {
    escape_->setEnabled(false);
}

void NoticeStrip::Close() {
    const QWidget* const focus = focusWidget();
    const bool hadKeyboard = focus != nullptr && focus->hasFocus();
    notice_ = {};
    hide();
    if (hadKeyboard && before_ != nullptr)
        before_->setFocus();
    Q_EMIT Closed();
}

// The link may show another notice, and closes the window for all we know.
void NoticeStrip::RunLink(std::size_t link) {
    const std::function<void()> run = notice_.Links.at(link).Run;
    Close();
    if (run)
        run();
}

void NoticeStrip::FollowFocus(QWidget* old, QWidget* now) {
    if (now != nullptr && isAncestorOf(now) && old != nullptr && !isAncestorOf(old) && old->window() == window())
        before_ = old;
}

QSize NoticeStrip::LinksSize() const {
    QSize size;
    for (std::size_t link = 0; link < std::min(MostLinks, notice_.Links.size()); ++link) {
        const QSize own = links_.at(link)->sizeHint();
        size = {size.width() + (link == 0 ? 0 : gap) + own.width(), std::max(size.height(), own.height())};
    }
    return size.expandedTo({0, 0});
}

NoticeStrip::Places NoticeStrip::PlacesFor(int width) const {
    const int line = fontMetrics().height();
    const int row = std::max(line, crossSize);
    const int left = gap + pictureSize + gap;
    const int inner = std::max(width - left - crossSize - 2 * gap, 1);
    const QSize links = LinksSize();
    const auto textAt = [&](int textWidth, qsizetype lines) {
        const int high = static_cast<int>(lines) * line;
        return QRect(left, margin + std::max((row - high) / 2, 0), textWidth, high);
    };
    const int beside = inner - (links.width() == 0 ? 0 : links.width() + 2 * gap);
    const Lines besideLinks(notice_.Text, font(), beside);
    if (links.width() == 0 || (beside > 0 && !besideLinks.Elided)) {
        const QRect text = textAt(beside, besideLinks.Texts.size());
        const int high = std::max(row, text.height());
        return {text, {left + inner - links.width(), margin + (high - links.height()) / 2}, high + 2 * margin};
    }
    const QRect text = textAt(inner, Lines(notice_.Text, font(), inner).Texts.size());
    const int below = margin + std::max(row, text.height());
    return {text, {left - 4, below}, below + links.height() + margin};
}

int NoticeStrip::heightForWidth(int width) const {
    return PlacesFor(width).Height;
}

QSize NoticeStrip::sizeHint() const {
    const int width = std::max(minimumSizeHint().width(), 560);
    return {width, heightForWidth(width)};
}

QSize NoticeStrip::minimumSizeHint() const {
    const int frame = gap + pictureSize + gap + crossSize + 2 * gap;
    return {frame + std::max(LinksSize().width(), 120), std::max(fontMetrics().height(), crossSize) + 2 * margin};
}

void NoticeStrip::Arrange() {
    const Places places = PlacesFor(width());
    QPoint at = places.Links;
    const int high = LinksSize().height();
    for (std::size_t link = 0; link < std::min(MostLinks, notice_.Links.size()); ++link) {
        const int wide = links_.at(link)->sizeHint().width();
        links_.at(link)->setGeometry(at.x(), at.y(), wide, high);
        at.rx() += wide + gap;
    }
    cross_->move(width() - gap - crossSize, margin);
}

bool NoticeStrip::IsElided() const {
    return Lines(notice_.Text, font(), PlacesFor(width()).Text.width()).Elided;
}

void NoticeStrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Style::Colour::Notice);
    painter.fillRect(0, height() - 1, width(), 1, Style::Colour::Hover);
    const QRect picture(gap, margin + (crossSize - pictureSize) / 2, pictureSize, pictureSize);
    Picture::Icon(u"information"_s).paint(&painter, picture);
    painter.setPen(Qt::black);
    const QRect text = PlacesFor(width()).Text;
    QRect line(text.topLeft(), QSize(text.width(), fontMetrics().height()));
    for (const QString& shown : Lines(notice_.Text, font(), text.width()).Texts) {
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
        line.translate(0, line.height());
    }
}

void NoticeStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Arrange();
}

bool NoticeStrip::event(QEvent* event) {
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    if (event->type() != QEvent::ToolTip || !IsElided())
        return QWidget::event(event);
    const QString whole = u"<p>"_s + notice_.Text.toHtmlEscaped() + u"</p>"_s;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), whole, this);
    return true;
}
