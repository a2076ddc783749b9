// SPDX-License-Identifier: MIT
#define OX_LOG_FILE "main"
// clang-format off
#define OX_LOG_FIXED_POSITIONS(position)                    \
    position(FONT_FAMILY, 37)                               \
    position(TOOLKIT_CATALOGUE_MISSING, 43)                 \
    position(OWN_CATALOGUE_MISSING, 49)
// clang-format on
#include "app/dialogmain.h"
#include "app/globalvars.h"
#include "app/guards/inputguard.h"
#include "app/qtsingleapplication.h"
#include "app/startup.h"
#include "libOxUtils/utils/log.h"
#include "libOxUtils/utils/qtversions.h"
#include "maintenance/identity/appversion.h"

#include <QIcon>
#include <QLocale>
#include <QTranslator>

#include <csignal>
#include <cstdio>

int main(int argc, char *argv[])
{
    // A window does not end because nobody reads its log, or waits for its answer, any more. The
    // commands that it waits for get the default back from the toolkit.
    std::signal(SIGPIPE, SIG_IGN);
    if (isVersionQuery(argc, argv)) {
        std::printf("moniconf %s\n", GetAppVersion().toUtf8().constData());
        return 0;
    }

    GlIntegrationSetting glSetting;
    QtSingleApplication app(argc, argv, true);
    glSetting.settle();
    keepFurtherPluginsOut();

    // A running instance does not come to the front: it answers, and that is all.
    if (app.sendMessage(QStringLiteral("Wake up!"), 5000))
        return 0;

    GlobalVars::Init();
    installApplicationFont(QStringLiteral("/usr/share/fonts/ttf/msyh.ttf"), 9);
    oxlog::debug(OX_LOG_AT(FONT_FAMILY), QApplication::font().family());

    const QString failed = QStringLiteral("Loading %1 failed.");
    const QString locale = QLocale::system().name();

    QTranslator toolkitTranslator;
    const QString toolkitCatalogue = QStringLiteral("qt_%1.qm").arg(locale);
    if (!toolkitTranslator.load(toolkitCatalogue, qtversions::toolkitTranslationsPath()))
        oxlog::critical(OX_LOG_AT(TOOLKIT_CATALOGUE_MISSING), failed.arg(toolkitCatalogue));
    QCoreApplication::installTranslator(&toolkitTranslator);

    QTranslator ownTranslator;
    const QString ownCatalogue =
        QStringLiteral("%1_%2.qm").arg(QCoreApplication::applicationName(), locale);
    if (!ownTranslator.load(ownCatalogue, QCoreApplication::applicationDirPath()))
        oxlog::critical(OX_LOG_AT(OWN_CATALOGUE_MISSING), failed.arg(ownCatalogue));
    QCoreApplication::installTranslator(&ownTranslator);

    InputGuard inputGuard;
    app.installEventFilter(&inputGuard);

    QApplication::setWindowIcon(QIcon(QStringLiteral(":/image/moniconf.png")));
    DialogMain dialog;
    dialog.show();
    return QApplication::exec();
}
