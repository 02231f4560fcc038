// SPDX-License-Identifier: MIT
#include "delivery/program.h"
#include "window/mainwindow.h"
#include "words/language.h"
#include "words/toolkit.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QSettings>
#include <QTranslator>

/// Whether the toolkit's own texts are installed in Russian.
static bool hasTranslation(QTranslator &translator)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
    return translator.load(QStringLiteral("qtbase_ru"), folder);
}

static QIcon programIcon()
{
    QIcon icon;
    for (const int size : {16, 32, 64, 256})
        icon.addFile(QStringLiteral(":/icons/%1.png").arg(size));
    return icon;
}

int main(int argc, char *argv[])
{
    delivery::prepareProgram();
    if (delivery::isWorker(argc, argv))
        return delivery::beWorker(argc, argv);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Of 125 and 150 % it would make 100 and 200.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
    const QApplication application(argc, argv);
    delivery::prepareApplication();
    QApplication::setWindowIcon(programIcon());
    const words::Language language = words::languageOfUser();
    const words::Speaking speaking(language);
    QTranslator installed;
    words::ToolkitTexts own;
    if (language == words::Language::Russian)
        QCoreApplication::installTranslator(hasTranslation(installed) ? &installed : &own);
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("xml2ryk"),
                       QStringLiteral("window"));
    window::MainWindow window(settings);
    window.show();
    const QString source = QCoreApplication::arguments().value(1);
    if (!source.isEmpty())
        window.open(source);
    return QApplication::exec();
}
