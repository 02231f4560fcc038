// SPDX-License-Identifier: MIT
#include "job/platform.h"

#include <QString>
#include <QTextCodec>

#include <conio.h>
#include <qt_windows.h>
#include <shellapi.h>

void preparePlatform() {}

QList<QByteArray> jobArguments(int, char **)
{
    // The narrow argv is in the code page of the system, which need not have the letters.
    const QTextCodec *codec = QTextCodec::codecForName("cp1251");
    QList<QByteArray> arguments;
    int count = 0;
    if (wchar_t **words = CommandLineToArgvW(GetCommandLineW(), &count)) {
        for (int i = 1; i < count; ++i)
            arguments.append(codec->fromUnicode(QString::fromWCharArray(words[i])));
        LocalFree(words);
    }
    return arguments;
}

void readKey()
{
    HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
    DWORD mode = 0;
    if (GetConsoleMode(input, &mode) != 0) {
        // A key that is no letter, an arrow for one, comes as two; the first of them can be a
        // letter of some code page too, and then comes alone.
        const int key = _getch();
        if ((key == 0 || key == 0xE0) && _kbhit() != 0)
            _getch();
    } else {
        char byte = 0;
        DWORD count = 0;
        ReadFile(input, &byte, 1, &count, nullptr);
    }
}
