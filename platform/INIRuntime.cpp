// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/INIRuntime.h"

#include "platform/File.h"
#include "platform/Files.h"
#include "platform/FolderLock.h"
#include "platform/ProfileText.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// The buffer of 255 characters that values are read into holds one zero behind them.
constexpr qsizetype LongestValue = 254;

/// One who is stopped while he writes must not stop the others.
constexpr std::chrono::seconds patience{5};

/// Most files are shorter, and in a longer one the value mostly stands at its beginning.
constexpr qint64 Beginning = 65536;

/// A file's beginning, and the rest only when it has to decide.
class LongText {
public:
    explicit LongText(const File& file)
        : file_(file),
          beginning_(file.Read(0, Beginning)),
          text_(beginning_),
          isWhole_(beginning_.size() < Beginning) {}

    QString Read(const QString& section, const QString& key) {
        if (!isWhole_) {
            if (const std::optional<QString> value = text_.ReadFromBeginning(section, key))
                return *value;
            text_ = ProfileText(file_.Read(0, file_.Length()));
            isWhole_ = true;
            if (page_)
                text_.UsePage(*page_);
        }
        return text_.Read(section, key);
    }

    void UseItsPage() {
        bool isNumber = false;
        const int page = Read(u"Infos"_s, u"CodePage"_s).toInt(&isNumber);
        if (!isNumber)
            return;
        page_ = page;
        text_.UsePage(page);
    }

private:
    const File& file_;
    QByteArray beginning_;
    ProfileText text_;
    bool isWhole_;
    std::optional<int> page_;
};

enum class Page { System, Named };

QStringList Values(const QString& section, const QStringList& keys, const QString& file, Page page) {
    QStringList values(keys.size());
    Ignoring([&] {
        const File opened = File::Open(file, File::Access::Read);
        LongText text(opened);
        if (page == Page::Named)
            text.UseItsPage();
        for (qsizetype at = 0; at < keys.size(); ++at)
            values[at] = text.Read(section, keys[at]).left(LongestValue);
    });
    return values;
}

} // namespace

QString INIRuntime::ReadINI(const QString& section, const QString& key, const QString& file) const {
    return ReadValues(section, {key}, file).first();
}

QStringList INIRuntime::ReadValues(const QString& section, const QStringList& keys, const QString& file) const {
    return Values(section, keys, file, Page::System);
}

QStringList INIRuntime::ReadTexts(const QString& section, const QStringList& keys, const QString& file) const {
    return Values(section, keys, file, Page::Named);
}

QString INIRuntime::WriteINI(const QString& section, const QString& key, const QString& value,
                             const QString& file) const {
    const bool done = Ignoring([&] {
        // None who writes at the same time loses a value.
        const FolderLock lock = FolderLock::WaitedFor(file.first(std::max(file.lastIndexOf(u'\\'), 0LL)), patience);
        const QByteArray old = WholeOrNothing(file);
        const QByteArray changed = ProfileText(old).Write(section, key, value);
        if (changed != old || !Files::FileExists(file))
            WriteWhole(file, changed);
    });
    return done ? u"1"_s : u"0"_s;
}
