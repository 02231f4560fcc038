// SPDX-License-Identifier: MIT
#include "batch/platform.h"

#include "delivery/platform.h"

#include <QDir>
#include <QFileInfo>

#include <fcntl.h>
#include <io.h>
#include <qt_windows.h>
#include <shellapi.h>

namespace batch
{

void prepareStreams()
{
    // Lines end as they do elsewhere: it is for other programs, too, what is written there.
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

QStringList arguments(int /*argc*/, char ** /*argv*/, QString & /*notText*/)
{
    int count = 0;
    LPWSTR *const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    QStringList texts;
    for (int i = 1; i < count; ++i)
        texts.append(QString::fromWCharArray(wide[i]));
    LocalFree(wide);
    return texts;
}

static HANDLE handleOf(std::FILE *stream)
{
    return GetStdHandle(stream == stdout ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

bool isTerminal(std::FILE *stream)
{
    DWORD mode = 0;
    return GetConsoleMode(handleOf(stream), &mode) != 0;
}

int columnsOf(std::FILE *terminal)
{
    constexpr int usual = 80;
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    return GetConsoleScreenBufferInfo(handleOf(terminal), &info) != 0
               ? info.srWindow.Right - info.srWindow.Left
               : usual;
}

bool write(std::FILE *stream, const QString &text)
{
    if (isTerminal(stream)) {
        const std::wstring wide = text.toStdWString();
        DWORD written = 0;
        return WriteConsoleW(handleOf(stream), wide.data(), DWORD(wide.size()), &written,
                             nullptr) != 0;
    }
    const QByteArray bytes = text.toUtf8();
    return std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stream) ==
               std::size_t(bytes.size()) &&
           std::fflush(stream) == 0;
}

bool listFolder(const QString &folder, QVector<FolderEntry> &entries, QString &message)
{
    const QString pattern = QDir::toNativeSeparators(folder) + QLatin1String("\\*");
    WIN32_FIND_DATAW found = {};
    HANDLE list = FindFirstFileW(pattern.toStdWString().c_str(), &found);
    if (list == INVALID_HANDLE_VALUE) {
        message = delivery::systemMessage();
        return false;
    }
    do {
        entries.append({QString::fromWCharArray(found.cFileName), true});
    } while (FindNextFileW(list, &found) != 0);
    const bool isWhole = GetLastError() == ERROR_NO_MORE_FILES;
    if (!isWhole)
        message = delivery::systemMessage();
    FindClose(list);
    return isWhole;
}

bool isHidden(const QString &path)
{
    const QFileInfo file(path);
    return file.isHidden() || file.fileName().startsWith(QLatin1Char('.'));
}

int openToAppend(const QString &path)
{
    // The C library would look for the end and write there, in two steps.
    HANDLE file = CreateFileW(QDir::toNativeSeparators(path).toStdWString().c_str(),
                              FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return -1;
    return _open_osfhandle(reinterpret_cast<intptr_t>(file), _O_BINARY | _O_NOINHERIT);
}

} // namespace batch
