// SPDX-License-Identifier: MIT
// No text in any window is cut, in any language: runs inside the simulated box only, once for each
// density of the screen.
#include "app/dialogmain.h"
#include "app/globalvars.h"
#include "app/languages.h"
#include "app/startup.h"
#include "display/dialogconfirm.h"
#include "display/dialoggamma.h"
#include "libOxUtils/utils/qtversions.h"
#include "maintenance/dialogabout.h"
#include "maintenance/dialogclock.h"
#include "maintenance/dialogfantempparam.h"
#include "maintenance/dialogpreference.h"
#include "tests/support/text.h"

#include <QtTest>
#include <QtWidgets>

// Takes half as many letters again as English.
class WordyLanguage : public QTranslator
{
    bool isEmpty() const override { return false; }

    QString translate(const char * /*context*/, const char *text, const char * /*comment*/,
                      int /*number*/) const override
    {
        const QString words = QString::fromUtf8(text);
        return words + words.left(words.size() / 2);
    }
};

class TestWindows : public QObject
{
    Q_OBJECT

private slots:
    void textsFit()
    {
        if (!QFile::exists("/run/simbox/hdmi"_s))
            QFAIL("not in the simulated box");
        installApplicationFont("/usr/share/fonts/ttf/msyh.ttf"_s, 9);
        GlobalVars::Init();
        QStringList catalogues = QDir("/opt/moniconf"_s).entryList({"moniconf_*.qm"_s});
        QVERIFY(catalogues.contains("moniconf_zh_CN.qm"_s));
        for (const QString &catalogue : catalogues << "wordy"_s) {
            WordyLanguage wordy;
            QTranslator own;
            QTranslator toolkit;
            const bool isWordy = catalogue == "wordy"_s;
            QVERIFY(isWordy || own.load("/opt/moniconf/"_s + catalogue));
            QVERIFY(isWordy || toolkit.load(QString(catalogue).replace("moniconf"_s, "qt"_s),
                                            qtversions::toolkitTranslationsPath()));
            QCoreApplication::installTranslator(&toolkit);
            QCoreApplication::installTranslator(isWordy ? static_cast<QTranslator *>(&wordy)
                                                        : &own);
            // The choice of a language is compared with the English word.
            for (const Language &language : LANGUAGES)
                QVERIFY(isWordy || DialogMain::tr(language.item) == QLatin1String(language.item));
            DialogMain window;
            DialogConfirm question(&window);
            DialogGamma gamma(&window);
            DialogAbout about(&window);
            DialogClock clock(&window);
            DialogFanTempParam fan(&window);
            DialogPreference preference(&window);
            for (QWidget *dialog : QApplication::topLevelWidgets())
                dialog->setVisible(qobject_cast<QDialog *>(dialog));
            for (const auto *part : QApplication::allWidgets()) {
                const QSize needed = part->property("wordWrap").toBool()
                                         ? QSize(0, part->heightForWidth(part->width()))
                                         : part->minimumSizeHint();
                const QString text = catalogue + u' ' + part->property("text").toString();
                if (part->isVisible() && !qobject_cast<QAbstractSpinBox *>(part->parentWidget()))
                    QVERIFY2(needed.expandedTo(part->size()) == part->size(), qPrintable(text));
            }
            // The question comes when the smallest mode may be on the screen: 800 x 600, less the
            // frame.
            QVERIFY(question.width() <= 784 && question.height() <= 560);
        }
    }
};

QTEST_MAIN(TestWindows)
#include "tst_windows.moc"
