// SPDX-License-Identifier: MIT
#include "batch/platform.h"

#include "delivery/interrupts.h"
#include "delivery/platform.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace batch
{

void prepareStreams() {}

/// Bytes as a text, with U+FFFD for what is none.
static bool isText(const QByteArray &bytes, QString &text)
{
    text = QString::fromUtf8(bytes);
    return text.toUtf8() == bytes;
}

QStringList arguments(int argc, char **argv, QString &notText)
{
    QStringList texts;
    for (int i = 1; i < argc; ++i) {
        QString text;
        if (!isText(argv[i], text) && notText.isNull())
            notText = text;
        texts.append(text);
    }
    return texts;
}

bool isTerminal(std::FILE *stream)
{
    return isatty(fileno(stream)) != 0;
}

int columnsOf(std::FILE *terminal)
{
    constexpr int usual = 80;
    winsize size = {};
    return ioctl(fileno(terminal), TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usual;
}

bool write(std::FILE *stream, const QString &text)
{
    // A pipe takes a page without waiting once it is said to be writable: what nobody reads must
    // not hold up the end of an interrupted run.
    constexpr int page = 4096;
    constexpr int pause = 100;
    const int file = fileno(stream);
    const QByteArray bytes = text.toUtf8();
    for (int done = 0; done < bytes.size();) {
        pollfd writable = {file, POLLOUT, 0};
        if (poll(&writable, 1, pause) <= 0) {
            if (delivery::Interrupts::exitCode() != 0)
                return false;
            continue;
        }
        const int size = std::min(page, int(bytes.size()) - done);
        const ssize_t written = ::write(file, bytes.constData() + done, std::size_t(size));
        if (written >= 0)
            done += int(written);
        else if (errno != EINTR && errno != EAGAIN)
            return false;
    }
    return true;
}

bool listFolder(const QString &folder, QVector<FolderEntry> &entries, QString &message)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> list(opendir(QFile::encodeName(folder).constData()),
                                                    closedir);
    // The toolkit's own lists leave out names that are no text.
    while (list != nullptr) {
        errno = 0;
        const dirent *const entry = readdir(list.get());
        if (entry == nullptr)
            break;
        QString name;
        const bool isName = isText(entry->d_name, name);
        entries.append({name, isName});
    }
    if (list != nullptr && errno == 0)
        return true;
    message = delivery::systemMessage();
    return false;
}

bool isHidden(const QString &path)
{
    return path.section(QLatin1Char('/'), -1).startsWith(QLatin1Char('.'));
}

int openToAppend(const QString &path)
{
    constexpr mode_t usual = 0666;
    // A pipe that nobody reads would be waited for.
    const int file = open(QFile::encodeName(path).constData(),
                          O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK, usual);
    if (file >= 0)
        fcntl(file, F_SETFL, O_APPEND);
    return file;
}

} // namespace batch
