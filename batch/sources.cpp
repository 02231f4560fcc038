// SPDX-License-Identifier: MIT
#include "batch/sources.h"

#include "batch/platform.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace batch
{

static QVector<Source> sourcesOf(const QString &folder)
{
    QVector<FolderEntry> entries;
    QString message;
    if (!listFolder(folder, entries, message))
        return {{folder, message}};
    std::sort(entries.begin(), entries.end(),
              [](const FolderEntry &a, const FolderEntry &b) { return a.name < b.name; });
    QVector<Source> sources;
    for (const FolderEntry &entry : entries) {
        const QString path = QDir(folder).filePath(entry.name);
        if (!entry.name.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive) || isHidden(path))
            continue;
        const QFileInfo file(path);
        if (!entry.isText)
            sources.append({path, QStringLiteral("Name is not text")});
        else if (file.exists() && !file.isDir() && !file.isFile())
            // Reading it might never end.
            sources.append({path, QStringLiteral("Not a regular file")});
        else if (!file.isDir())
            sources.append({path, QString()});
    }
    if (sources.isEmpty())
        return {{folder, QStringLiteral("No sources in folder")}};
    return sources;
}

QVector<Source> findSources(const QStringList &names)
{
    // Workers have another standard input.
    static const QStringList standardInput = {QStringLiteral("/dev/stdin"),
                                              QStringLiteral("/dev/fd/0"),
                                              QStringLiteral("/proc/self/fd/0")};
    QVector<Source> sources;
    for (const QString &name : names) {
        if (standardInput.contains(name))
            sources.append({name, QStringLiteral("Standard input")});
        else if (QFileInfo(name).isDir())
            sources += sourcesOf(name);
        else
            sources.append({name, QString()});
    }
    return sources;
}

QString destinationIn(const QString &into, const QString &source)
{
    const QFileInfo file(source);
    const QString base = file.completeBaseName();
    return QDir(into).filePath((base.isEmpty() ? file.fileName() : base) + QLatin1String(".txt"));
}

} // namespace batch
