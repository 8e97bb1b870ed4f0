// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/text/CommentBox.h"

#include "ui/skin/EnterKey.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextCursor>

CommentBox::CommentBox(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QString CommentBox::Text() const {
    // The raw text: the plain one has ordinary blanks in place of no-break ones.
    return document()->toRawText();
}

QSize CommentBox::sizeHint() const {
    return {QPlainTextEdit::sizeHint().width(), 4 * fontMetrics().lineSpacing() + 12};
}

int CommentBox::Room() const {
    return MostCharacters - (document()->characterCount() - 1) + static_cast<int>(textCursor().selectedText().size());
}

// The Enter keys would begin a new line; whatever types a character needs room for it.
void CommentBox::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = Skin::IsEnter(event->key());
    const bool types = !event->text().isEmpty() && event->text().front().isPrint();
    if (isEnter || (types && Room() <= 0))
        event->ignore();
    else
        QPlainTextEdit::keyPressEvent(event);
}

void CommentBox::inputMethodEvent(QInputMethodEvent* event) {
    if (event->commitString().size() > Room())
        event->setCommitString(event->commitString().left(qMax(0, Room())));
    QPlainTextEdit::inputMethodEvent(event);
}

void CommentBox::insertFromMimeData(const QMimeData* source) {
    QString text = source->text();
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    for (const QChar lineEnd :
         {QChar(u'\n'), QChar(u'\r'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
        text.replace(lineEnd, u' ');
    textCursor().insertText(text.left(qMax(0, Room())));
    ensureCursorVisible();
}
