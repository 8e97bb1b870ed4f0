// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/FilesTree.h"

#include "core/ProgramFolders.h"
#include "core/mTraduction.h"
#include "install/wizard/Analysis.h"
#include "install/wizard/EntryNames.h"
#include "install/zip/ccZip.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

constexpr qsizetype ExtensionLength = 3;
constexpr qsizetype ExtensionWithDot = 4;
constexpr qint64 LargestPicture = 64LL * 1024 * 1024; ///< bytes; nobody was asked about it
constexpr qsizetype KeyPrefix = 4;                    ///< "ZIP:"

/// By kind.
QString GroupKey(qint32 kind) {
    static const std::array<QString, 4> keys{u"Maps"_s, u"Mods"_s, u"Replays"_s, u"Shellmaps"_s};
    return keys.at(static_cast<std::size_t>(kind));
}

QString SingleKey() {
    return u"Single"_s;
}

QString PassedOverKey() {
    return u"PassedOver"_s;
}

/// The number of a record in a key; nothing for the other nodes.
std::optional<std::size_t> NumberIn(const QString& key) {
    bool isNumber = false;
    const uint number = key.startsWith(u"ZIP:"_s) ? QStringView(key).sliced(KeyPrefix).toUInt(&isNumber) : 0;
    return isNumber ? std::optional<std::size_t>(number) : std::nullopt;
}

} // namespace

FilesTree::FilesTree(InstallSource& source, const ccZip& zip) : source_(source), zip_(zip) {
    if (!source_.SourceIsZip) {
        AddSingle();
        return;
    }
    AddRecords();
    AddPassedOver();
    CountFiles();
}

FilesNode& FilesTree::AddGroup(const QString& key, int openImage) {
    const auto isGroup = [](const FilesNode& node) { return node.IsGroup(); };
    const auto row = static_cast<int>(std::ranges::count_if(nodes_, isGroup));
    places_.insert(key, static_cast<int>(nodes_.size()));
    nodes_.push_back({.Key = key,
                      .Text = GetText(key),
                      .Parent = {},
                      .Image = FilesNode::GroupImage,
                      .OpenImage = openImage,
                      .Open = true,
                      .Row = row});
    return nodes_.back();
}

FilesNode& FilesTree::AddFile(const QString& key, const QString& text, const QString& group) {
    const auto place = static_cast<int>(nodes_.size());
    std::vector<int>& siblings = Find(group)->Children;
    places_.insert(key, place);
    siblings.push_back(place);
    const auto row = static_cast<int>(siblings.size()) - 1;
    nodes_.push_back({.Key = key, .Text = text, .Parent = group, .Row = row});
    return nodes_.back();
}

void FilesTree::AddSingle() {
    const InstallRecord& file = source_.SingleFile;
    if (file.Kind == FileKind::None)
        return;
    // Mods and replays get no other picture for the open group. This is meant.
    const bool isMap = file.Kind == FileKind::Map || file.Kind == FileKind::ShellMap;
    AddGroup(GroupKey(file.Kind), isMap ? FilesNode::OpenGroupImage : 0);
    AddFile(SingleKey(), file.FileName, GroupKey(file.Kind));
}

void FilesTree::AddRecords() {
    nodes_.reserve(source_.InstallRecords.size() + source_.PassedOver.size() + 5);
    for (const qint32 kind : {FileKind::Map, FileKind::Mod, FileKind::Replay, FileKind::ShellMap})
        AddGroup(GroupKey(kind), FilesNode::OpenGroupImage);
    for (std::size_t number = 0; number < source_.InstallRecords.size(); ++number) {
        const InstallRecord& record = source_.InstallRecords[number];
        AddFile(u"ZIP:"_s + QString::number(number), record.FileName, GroupKey(record.Kind)).Checked = record.Selected;
    }
}

void FilesTree::AddPassedOver() {
    if (source_.PassedOver.empty())
        return;
    FilesNode& group = AddGroup(PassedOverKey(), FilesNode::OpenGroupImage);
    group.Open = false;
    group.HasCheckBox = false;
    group.Greyed = true;
    QHash<QString, QString> texts; // each is read out of the language file
    for (const PassedOverEntry& entry : source_.PassedOver) {
        QString& reason = texts[entry.Reason];
        if (reason.isEmpty())
            reason = GetText(entry.Reason);
        const QString key = u"Over:"_s + QString::number(Find(PassedOverKey())->Children.size());
        FilesNode& node = AddFile(key, entry.Name, PassedOverKey());
        node.Greyed = true;
        node.HasCheckBox = false;
        node.Reason = reason;
    }
}

void FilesTree::CountFiles() {
    for (FilesNode& node : nodes_) {
        if (!node.IsGroup())
            continue;
        node.Greyed = node.Greyed || node.Children.empty();
        node.Text += u" ("_s + QString::number(node.Children.size()) + u')';
    }
}

FilesNode* FilesTree::Find(const QString& key) {
    const int place = PlaceOf(key);
    return place < 0 ? nullptr : &nodes_[static_cast<std::size_t>(place)];
}

const FilesNode* FilesTree::Find(const QString& key) const {
    const int place = PlaceOf(key);
    return place < 0 ? nullptr : &nodes_[static_cast<std::size_t>(place)];
}

/// Null where the key holds no record's number.
InstallRecord* FilesTree::RecordOf(const QString& key) const {
    const std::optional<std::size_t> number = NumberIn(key);
    return number && *number < source_.InstallRecords.size() ? &source_.InstallRecords[*number] : nullptr;
}

void FilesTree::Tick(const QString& key, bool checked) {
    FilesNode* node = Find(key);
    if (node == nullptr || !node->HasCheckBox)
        return;
    node->Checked = checked;
    if (node->IsGroup())
        TickGroup(*node);
    else if (InstallRecord* record = RecordOf(key)) // the key of a single file has no number. This is meant.
        record->Selected = checked;
}

void FilesTree::TickGroup(const FilesNode& group) {
    for (const int place : group.Children) {
        FilesNode& child = nodes_[static_cast<std::size_t>(place)];
        child.Checked = group.Checked;
        InstallRecord* record = child.Key == SingleKey() ? &source_.SingleFile : RecordOf(child.Key);
        record->Selected = group.Checked;
    }
}

FilesDetails FilesTree::Select(const QString& key) {
    selected_ = key;
    return Details(key);
}

QString FilesTree::PathOf(const FilesNode& node) const {
    if (node.Key == SingleKey())
        return Paths::ToNativeAsGiven(source_.SingleFile.EntryPath);
    const InstallRecord* record = RecordOf(node.Key);
    return Paths::ToNativeAsGiven(zip_.Name) + u'/' + (record == nullptr ? node.Text : record->EntryPath);
}

FilesDetails FilesTree::Details(const QString& key) const {
    FilesDetails details{.File = u"-"_s, .Name = {}, .Comments = {}, .Reason = {}};
    const FilesNode* node = Find(key);
    if (node == nullptr || node->IsGroup())
        return details;
    details.File = PathOf(*node);
    details.Reason = node->Reason;
    const InstallRecord* record = node->Key == SingleKey() ? &source_.SingleFile : RecordOf(key);
    if (record == nullptr)
        return details;
    // By the node's text: a shell map whose name only ends so has no boxes, and a mod's have no labels. This is meant.
    details.LabelsVisible = Analysis::IsShellMapName(node->Text);
    details.BoxesVisible = details.LabelsVisible || EntryNames::End(node->Text, ExtensionLength) == u"big";
    if (details.BoxesVisible) {
        details.Name = record->DisplayName;
        details.Comments = record->Comments;
    }
    return details;
}

FilesTree::Preview FilesTree::PreviewFile(const QString& key) const {
    const FilesNode* node = Find(key);
    const bool isFile = node != nullptr && !node->IsGroup() && node->Parent != PassedOverKey();
    if (!isFile || EntryNames::End(node->Text, ExtensionLength) != u"map")
        return {};
    if (node->Key != SingleKey())
        return ExtractedPreview(*node);
    const QString picture = EntryNames::Without(source_.SingleFile.EntryPath, ExtensionWithDot) + u".tga"_s;
    return Files::FileExists(picture) ? Preview{.File = picture} : Preview{};
}

FilesTree::Preview FilesTree::ExtractedPreview(const FilesNode& node) const {
    const QString entry = EntryNames::Without(RecordOf(node.Key)->EntryPath, ExtensionLength) + u"tga"_s;
    const QString scratch = ProgramFolders::ScratchFolder();
    ccZip zip;
    zip.Password = zip_.Password;
    zip.Init(source_.InstallRecords.front().ZipPath);
    if (zip.Size(zip.Find(entry)) > LargestPicture || zip.Decompress(scratch, entry, false) != 0)
        return {};
    return {.File = scratch + u'\\' + EntryNames::LastPart(entry), .IsExtracted = true};
}

InstallRecord& FilesTree::TypedRecord() const {
    InstallRecord* record = RecordOf(selected_);
    // The key of a single file holds no number: nothing that is typed is kept. This is meant.
    if (record == nullptr)
        throw RuntimeError(ErrorNumber::TypeMismatch, u"%1: no number"_s.arg(selected_));
    return *record;
}

void FilesTree::NameTyped(const QString& text) {
    TypedRecord().DisplayName = text;
}

void FilesTree::CommentsTyped(const QString& text) {
    TypedRecord().Comments = text;
}
