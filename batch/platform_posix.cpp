// SPDX-License-Identifier: MIT
#include "batch/platform.h"

#include "delivery/platform.h"

#include <QFile>
#include <QTextCodec>

#include <cerrno>
#include <clocale>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/ioctl.h>
#include <unistd.h>

namespace batch
{

void preparePlatform()
{
    // Names of files are UTF-8, whatever the locale is.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

void prepareApplication()
{
    // What the system says is put into words by its English text.
    std::setlocale(LC_MESSAGES, "C");
}

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
    const QByteArray bytes = text.toUtf8();
    return std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stream) ==
               std::size_t(bytes.size()) &&
           std::fflush(stream) == 0;
}

bool listFolder(const QString &folder, QVector<FolderEntry> &entries, QString &message)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> list(opendir(QFile::encodeName(folder).constData()),
                                                    closedir);
    // The toolkit's own lists leave out names that are no text.
    errno = 0;
    while (const dirent *entry = list ? readdir(list.get()) : nullptr) {
        QString name;
        const bool isName = isText(entry->d_name, name);
        entries.append({name, isName});
        errno = 0;
    }
    if (errno == 0)
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
    return open(QFile::encodeName(path).constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC,
                usual);
}

} // namespace batch
