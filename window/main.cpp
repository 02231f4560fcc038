// SPDX-License-Identifier: MIT
#include "delivery/program.h"
#include "window/mainwindow.h"
#include "words/language.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QSettings>
#include <QTranslator>

/// The toolkit's own texts, where its translations are installed.
static void translateToolkit(QTranslator &translator)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
    if (words::languageOfUser() == words::Language::Russian &&
        translator.load(QStringLiteral("qtbase_ru"), folder))
        QCoreApplication::installTranslator(&translator);
}

int main(int argc, char *argv[])
{
    delivery::prepareProgram();
    if (delivery::isWorker(argc, argv))
        return delivery::beWorker(argc, argv);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    const QApplication application(argc, argv);
    delivery::prepareApplication();
    const words::Speaking speaking(words::languageOfUser());
    QTranslator translator;
    translateToolkit(translator);
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("xml2ryk"),
                       QStringLiteral("window"));
    window::MainWindow window(settings);
    window.show();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1)
        window.open(arguments.at(1));
    return QApplication::exec();
}
