// SPDX-License-Identifier: MIT
#include "job/console.h"

#include "job/platform.h"

#include <QIODevice>
#include <QObject>
#include <QTextCodec>

#include <cstdio>

namespace
{

/// Standard output, for a stream in UTF-8: those of Qt 6 know no other encodings than of Unicode.
class StandardOutput : public QIODevice
{
public:
    StandardOutput() { open(WriteOnly); }

    const QTextCodec *codec = QTextCodec::codecForLocale();

protected:
    qint64 readData(char * /*data*/, qint64 /*size*/) override { return -1; }

    qint64 writeData(const char *data, qint64 size) override
    {
        const QByteArray bytes =
            codec->fromUnicode(QString::fromUtf8(data, static_cast<int>(size)));
        const auto length = static_cast<std::size_t>(bytes.size());
        const bool isWritten =
            std::fwrite(bytes.constData(), 1, length, stdout) == length && std::fflush(stdout) == 0;
        return isWritten ? size : -1;
    }
};

StandardOutput &standardOutput()
{
    static StandardOutput device;
    return device;
}

} // namespace

QTextStream &consoleOut()
{
    static struct Stream : QTextStream {
        Stream() : QTextStream(&standardOutput()) { useUtf8(*this); }
    } stream;
    return stream;
}

void setConsoleCodec(const char *name)
{
    consoleOut().flush();
    standardOutput().codec = QTextCodec::codecForName(name);
}

void useUtf8(QTextStream &stream)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    stream.setCodec("UTF-8");
#else
    stream.setEncoding(QStringConverter::Utf8);
#endif
}

void printMessage(const QString &text, bool pause)
{
    consoleOut() << text << Qt::endl;
    if (pause)
        pauseForKey();
}

void pauseForKey()
{
    printMessage(QObject::tr("Press any key to continue..."), false);
    readKey();
}
