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

#include <type_traits>

// Takes half as many letters again as English.
class WordyLanguage : public QTranslator
{
public:
    QString translate(const char * /*context*/, const char *text, const char * /*comment*/,
                      int /*number*/) const override
    {
        const QString words = QString::fromUtf8(text);
        return words + words.left(words.size() / 2);
    }

    bool isEmpty() const override { return false; }
};

class TestWindows : public QObject
{
    Q_OBJECT

    template<typename Window>
    void hasRoomForItsTexts()
    {
        Window window(nullptr);
        window.show();
        for (const auto *part : window.template findChildren<QWidget *>()) {
            const int height = part->heightForWidth(part->width());
            const QSize needed = height < 0 ? part->minimumSizeHint() : QSize(0, height);
            const QString what = window.windowTitle() + u' ' + part->objectName() + u' ' +
                                 part->property("text").toString();
            if (part->isVisible() && !qobject_cast<QAbstractSpinBox *>(part->parentWidget()))
                QVERIFY2(needed.expandedTo(part->size()) == part->size(), qPrintable(what));
        }
        // The question is the window that comes when the smallest mode may be on the screen: 800 x
        // 600, less the frame.
        if constexpr (std::is_same_v<Window, DialogConfirm>)
            QVERIFY2(window.width() <= 784 && window.height() <= 560,
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
        QTest::newRow("a wordy language") << QString();
        const QDir home(QStringLiteral("/opt/moniconf"));
        QVERIFY(home.exists(QStringLiteral("moniconf_zh_CN.qm")));
        for (const QString &file : home.entryList({QStringLiteral("moniconf_*.qm")}))
            QTest::newRow(qPrintable(file)) << file.section(u'_', 1).section(u'.', 0, 0);
    }

    void textsFit()
    {
        QFETCH(QString, language);
        WordyLanguage wordy;
        QTranslator own;
        QTranslator toolkit;
        const QString ownFile = QStringLiteral("/opt/moniconf/moniconf_%1.qm").arg(language);
        const QString toolkitFile = QStringLiteral("qt_%1.qm").arg(language);
        if (language.isEmpty())
            QCoreApplication::installTranslator(&wordy);
        else
            QVERIFY(own.load(ownFile) &&
                    toolkit.load(toolkitFile, qtversions::toolkitTranslationsPath()));
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
