// SPDX-License-Identifier: MIT
// No text in any window is cut, in any language: runs inside the simulated box only, once for each
// density of the screen.
#include "app/dialogmain.h"
#include "app/globalvars.h"
#include "app/startup.h"
#include "display/dialogconfirm.h"
#include "display/dialoggamma.h"
#include "libOxUtils/utils/qtversions.h"
#include "maintenance/dialogabout.h"
#include "maintenance/dialogclock.h"
#include "maintenance/dialogfantempparam.h"
#include "maintenance/dialogpreference.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

class TestWindows : public QObject
{
    Q_OBJECT

    template<typename Window>
    void hasRoomForItsTexts()
    {
        Window window(nullptr);
        window.show();
        for (const auto *part : window.template findChildren<QWidget *>()) {
            const QSize needed = part->heightForWidth(part->width()) < 0
                                     ? part->minimumSizeHint()
                                     : QSize(0, part->heightForWidth(part->width()));
            const QString what = window.windowTitle() + u' ' + part->objectName() + u' ' +
                                 part->property("text").toString();
            if (part->isVisible() && !qobject_cast<QAbstractSpinBox *>(part->parentWidget()))
                QVERIFY2(needed.expandedTo(part->size()) == part->size(), qPrintable(what));
        }
        // On the smallest screen, less the window's frame.
        QVERIFY2(window.width() <= 800 - 16 && window.height() <= 600 - 40,
                 qPrintable(window.windowTitle()));
    }

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QStringLiteral("/run/simbox/hdmi")))
            QFAIL("not in the simulated box");
        installApplicationFont(QStringLiteral("/usr/share/fonts/ttf/msyh.ttf"), 9);
        GlobalVars::Init();
    }

    void textsFit_data()
    {
        QTest::addColumn<QString>("language");
        const QDir home(QStringLiteral("/opt/moniconf"));
        for (const QString &file : home.entryList({QStringLiteral("moniconf_*.qm")}))
            QTest::newRow(qPrintable(file)) << file.section(u'_', 1).section(u'.', 0, 0);
        QVERIFY(home.exists(QStringLiteral("moniconf_zh_CN.qm")));
    }

    void textsFit()
    {
        QFETCH(QString, language);
        QTranslator toolkit;
        QTranslator own;
        QVERIFY(toolkit.load(QStringLiteral("qt_%1.qm").arg(language),
                             qtversions::toolkitTranslationsPath()));
        QVERIFY(own.load(QStringLiteral("/opt/moniconf/moniconf_%1.qm").arg(language)) ||
                language == QLatin1String("en_US"));
        QCoreApplication::installTranslator(&toolkit);
        QCoreApplication::installTranslator(&own);
        hasRoomForItsTexts<DialogMain>();
        hasRoomForItsTexts<DialogConfirm>();
        hasRoomForItsTexts<DialogGamma>();
        hasRoomForItsTexts<DialogAbout>();
        hasRoomForItsTexts<DialogClock>();
        hasRoomForItsTexts<DialogFanTempParam>();
        hasRoomForItsTexts<DialogPreference>();
    }
};

QTEST_MAIN(TestWindows)
#include "tst_windows.moc"
