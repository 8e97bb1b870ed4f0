// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Where the program itself looks names up without regard to case, it must not do so once an entry.
#include "tests/big/Archives.h"
#include "tests/big/document_support.h"

#include "big/document/Extraction.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Counts how often a folder is opened to be listed.
class Listings {
public:
    explicit Listings(const QString& folder) : queue_(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
        EXPECT_GE(::inotify_add_watch(queue_, Paths::EncodeNative(Paths::ToNative(folder)).constData(), IN_OPEN), 0);
    }

    ~Listings() { ::close(queue_); }

    Listings(const Listings&) = delete;
    Listings& operator=(const Listings&) = delete;

    /// Since this was made or last asked.
    [[nodiscard]] int Count() const {
        alignas(inotify_event) std::array<char, 65536> block{};
        int count = 0;
        for (ssize_t had = 0; (had = ::read(queue_, block.data(), block.size())) > 0;) {
            for (ssize_t at = 0; at < had;) {
                const auto* event = reinterpret_cast<const inotify_event*>(block.data() + at);
                EXPECT_EQ(event->mask & IN_Q_OVERFLOW, 0U);
                count += (event->mask & IN_ISDIR) != 0 ? 1 : 0;
                at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            }
        }
        return count;
    }

private:
    int queue_;
};

class ExtractionLookups : public ArchiveTest {
protected:
    static constexpr int Each = 500;
    static constexpr int Both = 2 * Each;

    /// A table of as many entries of the archive as new ones, all in one folder.
    void Fill() {
        std::vector<NamedBytes> entries;
        entries.reserve(Each);
        for (int i = 0; i < Each; ++i)
            entries.emplace_back(u"Data\\file %1.ini"_s.arg(i), "x");
        mBIG::BigFileName = Put(u"my.big"_s, ArchiveOf(entries));
        ASSERT_TRUE(mBIG::ReadBigFile(mBIG::BigFileName));
        const QString source = Put(u"source"_s, "new");
        for (int i = 0; i < Each; ++i)
            mBIG::BigEntries.push_back({u"Data\\new %1.ini"_s.arg(i), 0, 3, true, false, source});
    }

    void Extract() {
        std::vector<qint32> list;
        Extraction::TakeAll(list);
        Extraction::DoExtract(
            list, {.ExtractFolder = At(u"out\\"_s), .ExtractCancelled = false, .RecreateFolders = true}, false);
    }
};

} // namespace

TEST_F(ExtractionLookups, AFolderIsListedOnceHoweverManyEntriesGoIntoIt) {
    Fill();
    Files::MakeFolders(At(u"out\\DATA"_s));
    const Listings folder(At(u"out\\DATA"_s));
    Extract();
    EXPECT_EQ(folder.Count(), 1) << "the looks before the first entry count as one";
    EXPECT_EQ(Files::ListFolder(At(u"out\\DATA\\*.*"_s)).size(), Both);
}

TEST_F(ExtractionLookups, FilesThatStandAlreadyAreFoundWithoutAnotherListing) {
    Fill();
    Extract();
    const Listings folder(At(u"out\\Data"_s));
    host_.Answers.assign(Both, Host::Answer::Yes);
    Extract();
    EXPECT_EQ(folder.Count(), 1);
    EXPECT_EQ(host_.Messages.size(), static_cast<std::size_t>(Both));
}
