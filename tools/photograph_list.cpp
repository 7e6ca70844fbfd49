// SPDX-License-Identifier: MIT
#include "tools/photograph_list.h"

#include "files/outcome.h"
#include "files/paths.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace tools {
namespace {

/// A pipe, a socket or a device is none. What cannot be told, as of a link to nowhere, is left to
/// whoever reads it, so that its reason is heard.
bool mayBeFile(const fs::directory_entry& entry)
{
    std::error_code error;
    const fs::file_type type = entry.status(error).type();
    return type == fs::file_type::regular || type == fs::file_type::not_found ||
           type == fs::file_type::none || type == fs::file_type::unknown;
}

class FolderReader
{
public:
    FolderReader(std::vector<Entry>& entries, bool recursive)
        : m_entries(entries), m_recursive(recursive)
    {
    }

    void read(const QString& folder, const QString& subfolder)
    {
        QStringList photographs;
        QStringList folders;
        std::error_code error;
        fs::directory_iterator entry(files::nativePath(folder), error);
        for (; !error && entry != fs::directory_iterator(); entry.increment(error))
            sort(*entry, folder, photographs, folders);
        if (error)
            fail(folder, files::textOf(error));

        photographs.sort();
        folders.sort();
        for (const QString& name : qAsConst(photographs))
            m_entries.push_back({files::pathIn(folder, name), subfolder, {}, {}});
        for (const QString& name : qAsConst(folders))
            read(files::pathIn(folder, name),
                 subfolder.isEmpty() ? name : files::pathIn(subfolder, name));
    }

private:
    void sort(const fs::directory_entry& entry, const QString& folder, QStringList& photographs,
              QStringList& folders)
    {
        const std::string bytes = entry.path().filename().u8string();
        const QString name = QString::fromStdString(bytes);
        if (name.startsWith(QLatin1Char('.')))
            return;
        std::error_code error;
        const bool isFolder = entry.is_directory(error) && !entry.is_symlink(error);
        const bool isPhotograph =
            name.endsWith(QLatin1String(".bmp"), Qt::CaseInsensitive) && mayBeFile(entry);
        if (!isPhotograph && !(isFolder && m_recursive))
            return;
        if (name.toStdString() != bytes)
            fail(files::pathIn(folder, name), QStringLiteral("its name is not in UTF-8"));
        else
            (isFolder ? folders : photographs).append(name);
    }

    void fail(const QString& path, const QString& reason)
    {
        m_entries.push_back({path, {}, QStringLiteral("cannot be read: ") + reason, {}});
    }

    std::vector<Entry>& m_entries;
    bool m_recursive;
};

} // namespace

std::vector<Entry> listPhotographs(const QStringList& paths, bool recursive)
{
    std::vector<Entry> entries;
    for (const QString& path : paths) {
        std::error_code error;
        if (!fs::is_directory(files::nativePath(path), error)) {
            entries.push_back({path, {}, {}, {}});
            continue;
        }
        const std::size_t before = entries.size();
        FolderReader(entries, recursive).read(path, {});
        if (entries.size() == before)
            entries.push_back(
                {path, {}, QStringLiteral("no photographs (*.bmp) in this folder"), {}});
    }
    return entries;
}

} // namespace tools
