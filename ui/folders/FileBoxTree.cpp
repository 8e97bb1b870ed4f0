// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/folders/FileBoxTree.h"

#include "ui/folders/FileBoxKey.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype filteredLength = 4;

/// The path of a folder's node ends in a backslash: names are appended to it as it is.
QString AsFolder(const QString& path) {
    return path.isEmpty() || path.endsWith(u'\\') ? path : path + u'\\';
}

QStringView MarkOf(ShellFolders::DriveKind kind) {
    switch (kind) {
    case ShellFolders::DriveKind::Removable:
        return FileBoxKey::Floppy;
    case ShellFolders::DriveKind::Remote:
        return FileBoxKey::LanDrive;
    case ShellFolders::DriveKind::CdRom:
        return FileBoxKey::CDRom;
    case ShellFolders::DriveKind::Fixed:
        break;
    }
    return FileBoxKey::HardDrive;
}

QString Or(const QString& name, const QString& otherwise) {
    return name.isEmpty() ? otherwise : name;
}

} // namespace

/// What one folder's enumeration has brought so far.
struct FileBoxTree::Walk {
    QString Folder; ///< ends in a backslash
    bool BelowNetwork = false;
    std::vector<Node> Folders;
    std::vector<Node> Files;
};

FileBoxTree::FileBoxTree(const FileBoxSystem& system, QObject* parent) : QAbstractItemModel(parent), system_(&system) {}

void FileBoxTree::Use(const FileBoxSystem& system) {
    beginResetModel();
    nodes_.clear();
    root_ = None;
    system_ = &system;
    endResetModel();
}

void FileBoxTree::Refresh() {
    beginResetModel();
    nodes_.clear();
    MakeTop();
    MakeDrives();
    endResetModel();
}

int FileBoxTree::Make(int parent, QString key, QString text) {
    const int node = next_++;
    Node made{parent, 0, std::move(key), std::move(text), {}, {}};
    if (parent != None) {
        made.Row = static_cast<int>(nodes_.at(parent).Children.size());
        nodes_.at(parent).Children.push_back(node);
    }
    nodes_.emplace(node, std::move(made));
    return node;
}

void FileBoxTree::MakePlaceholder(int parent) {
    Make(parent, FileBoxKey::PlaceholderOf(nodes_.at(parent).Key), u"BIDON"_s);
}

void FileBoxTree::MakeTop() {
    using Folder = FileBoxSystem::ShellFolder;
    root_ = Make(None, FileBoxKey::Root.toString(), Or(system_->NameOf(Folder::Machine), u"Poste de travail"_s));
    MakePlaceholder(Make(root_, FileBoxKey::Of(FileBoxKey::Documents, AsFolder(system_->Documents())),
                         Or(system_->NameOf(Folder::Documents), u"Mes documents"_s)));
    MakePlaceholder(Make(root_, FileBoxKey::Of(FileBoxKey::Network, AsFolder(system_->NetworkPlaces())),
                         Or(system_->NameOf(Folder::Network), u"Favoris R\u00E9seau"_s)));
    // Where a system has no documents folder that everything is kept in, its home folder stands beside.
    for (const ShellFolders::Place& place : system_->OtherPlaces())
        MakePlaceholder(Make(root_, FileBoxKey::Of(FileBoxKey::CloseFolder, AsFolder(place.Path)), place.Text));
}

void FileBoxTree::MakeDrives() {
    for (const ShellFolders::Drive& drive : system_->Drives())
        MakePlaceholder(Make(root_, FileBoxKey::Of(MarkOf(drive.Kind), AsFolder(drive.Path)), drive.Text));
}

void FileBoxTree::Open(int node) {
    if (!Has(node))
        return;
    SwapMark(node, FileBoxKey::CloseFolder, FileBoxKey::OpenFolder);
    if (!IsUnread(node))
        return;
    Walk walk;
    walk.Folder = AsFolder(Path(node).trimmed());
    walk.BelowNetwork = Key(node).startsWith(FileBoxKey::Network);
    RemoveChildren(node);
    if (walk.Folder.isEmpty())
        return;
    system_->ForEachEntry(walk.Folder, [&](const ShellFolders::Entry& entry) {
        Take(walk, entry);
        if (Yield)
            Yield();
        return Has(node);
    });
    if (!Has(node))
        return;
    std::ranges::move(walk.Files, std::back_inserter(walk.Folders));
    Insert(node, 0, walk.Folders);
}

bool FileBoxTree::IsUnread(int node) const {
    if (!Has(node))
        return false;
    const std::vector<int>& children = nodes_.at(node).Children;
    return !children.empty() && FileBoxKey::IsPlaceholder(Key(children.front()));
}

int FileBoxTree::ChildNamed(int node, const QString& name) const {
    if (!Has(node))
        return None;
    const std::vector<int>& children = nodes_.at(node).Children;
    const auto found = std::ranges::find_if(children, [&](int child) { return nodes_.at(child).Text == name; });
    return found != children.end() ? *found : None;
}

int FileBoxTree::ChildToward(int node, const QString& folder) const {
    if (!Has(node))
        return None;
    int best = None;
    qsizetype length = Path(node).size(); // a link may lead up again
    for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        for (const int child : nodes_.at(node).Children) {
            const QString path = Path(child);
            if (path.size() > length && path.endsWith(u'\\') && folder.startsWith(path, sensitivity)) {
                best = child;
                length = path.size();
            }
        }
        if (best != None)
            break;
    }
    return best;
}

void FileBoxTree::Take(Walk& walk, const ShellFolders::Entry& entry) const {
    if (entry.IsHidden && !ShowHiddenFiles)
        return;
    const bool isShortcut = !entry.Target.isEmpty();
    if (isShortcut && entry.TargetIsFolder) {
        // A link that leads in a circle does no harm: each turn is read only when somebody opens it.
        const bool hasEnding = !entry.IsFolder && entry.Name.endsWith(u".lnk", Qt::CaseInsensitive);
        Node node;
        node.Key = FileBoxKey::Of(FileBoxKey::CloseFolder, AsFolder(entry.Target));
        node.Text = hasEnding ? entry.Name.chopped(4) : entry.Name;
        node.Icon = entry.Target;
        walk.Folders.push_back(std::move(node));
    } else if (entry.IsFolder) {
        Node node;
        node.Key = FileBoxKey::Of(FileBoxKey::CloseFolder, walk.Folder + entry.Name + u'\\');
        node.Text = entry.Name;
        walk.Folders.push_back(std::move(node));
    } else if (ShowFiles && Shows(entry.Name) && walk.Files.size() < MostFiles) {
        Node node;
        node.Key =
            FileBoxKey::Of(FileBoxKey::File, walk.BelowNetwork && isShortcut ? entry.Target : walk.Folder + entry.Name);
        node.Text = entry.Name;
        walk.Files.push_back(std::move(node));
    }
}

bool FileBoxTree::Shows(const QString& fileName) const {
    // The last four characters, so an extension of three letters with its dot is the unit.
    return Filter.isEmpty() || Filter.contains(fileName.last(std::min(fileName.size(), filteredLength)));
}

void FileBoxTree::RemoveChildren(int parent) {
    Node& node = nodes_.at(parent);
    beginRemoveRows(IndexOf(parent), 0, static_cast<int>(node.Children.size()) - 1);
    for (const int child : node.Children)
        nodes_.erase(child);
    node.Children.clear();
    endRemoveRows();
}

void FileBoxTree::Insert(int parent, std::size_t row, const std::vector<Node>& children) {
    if (children.empty())
        return;
    beginInsertRows(IndexOf(parent), static_cast<int>(row), static_cast<int>(row + children.size()) - 1);
    std::vector<int> made;
    for (const Node& child : children) {
        made.push_back(next_++);
        nodes_.emplace(made.back(), child).first->second.Parent = parent;
        if (!child.Key.startsWith(FileBoxKey::File))
            MakePlaceholder(made.back());
    }
    std::vector<int>& all = nodes_.at(parent).Children;
    all.insert(all.begin() + static_cast<std::ptrdiff_t>(row), made.begin(), made.end());
    for (std::size_t place = row; place < all.size(); ++place)
        nodes_.at(all[place]).Row = static_cast<int>(place);
    endInsertRows();
}

int FileBoxTree::AddFolder(int parent, const QString& name) {
    if (!Has(parent))
        return None;
    const std::vector<int>& children = nodes_.at(parent).Children;
    const auto files =
        std::ranges::find_if(children, [&](int child) { return Key(child).startsWith(FileBoxKey::File); });
    const auto row = static_cast<std::size_t>(files - children.begin());
    Node node;
    node.Key = FileBoxKey::Of(FileBoxKey::CloseFolder, AsFolder(Path(parent)) + name + u'\\');
    node.Text = name;
    Insert(parent, row, {node});
    return nodes_.at(parent).Children[row];
}

void FileBoxTree::Close(int node) {
    if (Has(node))
        SwapMark(node, FileBoxKey::OpenFolder, FileBoxKey::CloseFolder);
}

void FileBoxTree::SwapMark(int node, QStringView from, QStringView to) {
    QString& key = nodes_.at(node).Key;
    if (!key.startsWith(from))
        return;
    key = to.toString() + key.sliced(from.size());
    Q_EMIT dataChanged(IndexOf(node), IndexOf(node), {Qt::DecorationRole, KeyRole, ImageRole});
}

QString FileBoxTree::Path(int node) const {
    return Has(node) ? FileBoxKey::PathOf(Key(node)) : QString();
}

int FileBoxTree::TopNode(QStringView mark) const {
    if (root_ == None)
        return None;
    const std::vector<int>& children = nodes_.at(root_).Children;
    const auto found = std::ranges::find_if(children, [&](int child) { return Key(child).startsWith(mark); });
    return found != children.end() ? *found : None;
}

QString FileBoxTree::ImageOf(const Node& node) const {
    // A folder with a picture of its own has it under its path; the others share those of their marks.
    if (node.Icon.isEmpty())
        return FileBoxKey::MarkOf(node.Key);
    return node.Icon + (node.Key.startsWith(FileBoxKey::OpenFolder) ? u"\\Open"_s : u"\\Closed"_s);
}

QModelIndex FileBoxTree::IndexOf(int node) const {
    return Has(node) ? createIndex(nodes_.at(node).Row, 0, static_cast<quintptr>(node)) : QModelIndex();
}

int FileBoxTree::NodeOf(const QModelIndex& index) {
    return index.isValid() ? static_cast<int>(index.internalId()) : None;
}

QModelIndex FileBoxTree::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent))
        return {};
    if (!parent.isValid())
        return IndexOf(root_);
    return IndexOf(nodes_.at(NodeOf(parent)).Children[static_cast<std::size_t>(row)]);
}

QModelIndex FileBoxTree::parent(const QModelIndex& index) const {
    return Has(NodeOf(index)) ? IndexOf(nodes_.at(NodeOf(index)).Parent) : QModelIndex();
}

int FileBoxTree::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid())
        return Has(root_) ? 1 : 0;
    return Has(NodeOf(parent)) ? static_cast<int>(nodes_.at(NodeOf(parent)).Children.size()) : 0;
}

int FileBoxTree::columnCount(const QModelIndex& /*parent*/) const {
    return 1;
}

QVariant FileBoxTree::data(const QModelIndex& index, int role) const {
    if (!Has(NodeOf(index)))
        return {};
    const Node& node = nodes_.at(NodeOf(index));
    switch (role) {
    case Qt::DisplayRole:
        return node.Text;
    case KeyRole:
        return node.Key;
    case ImageRole:
        return ImageOf(node);
    default:
        return {};
    }
}
