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
#include "tests/support/text.h"

#include <QtTest>
#include <QtWidgets>

// Takes half as many letters again as English, but for what stays as it is.
class WordyLanguage : public QTranslator
{
    QString translate(const char * /*context*/, const char *text, const char * /*comment*/,
                      int /*number*/) const override
    {
        const QString words = QString::fromUtf8(text);
        return words == "Chinese"_s ? words : words + words.right(words.size() / 2);
    }
};

// Paints no text, but collects what would be cut.
class WatchfulStyle : public QProxyStyle
{
public:
    static inline QStringList cutTexts;

private:
    void drawItemText(QPainter *painter, const QRect &place, int flags, const QPalette & /*colors*/,
                      bool /*isEnabled*/, const QString &text,
                      QPalette::ColorRole /*role*/) const override
    {
        // A line may be higher than its place by what is rounded off.
        if (!place.adjusted(0, -1, 0, 1).contains(painter->boundingRect(place, flags, text)))
            cutTexts << text;
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
        // The test library has the style measure for 96 dots an inch.
        QCoreApplication::setAttribute(Qt::AA_Use96Dpi, false);
        QApplication::setStyle(new WatchfulStyle);
        installApplicationFont("/usr/share/fonts/ttf/msyh.ttf"_s, 9);
        GlobalVars::Init();
        QStringList catalogues = QDir("/opt/moniconf"_s).entryList({"moniconf_*.qm"_s});
        for (const QString &catalogue : catalogues << "wordy"_s) {
            WordyLanguage wordy;
            QTranslator own, toolkit;
            const bool isWordy = catalogue == "wordy"_s;
            QVERIFY(isWordy || own.load("/opt/moniconf/"_s + catalogue));
            QVERIFY(isWordy || toolkit.load(QString(catalogue).replace("moniconf"_s, "qt"_s),
                                            qtversions::toolkitTranslationsPath()));
            QCoreApplication::installTranslator(&toolkit);
            QCoreApplication::installTranslator(isWordy ? static_cast<QTranslator *>(&wordy)
                                                        : &own);
            // There the calendar begins with the widest day.
            QLocale::setDefault(QLocale(isWordy ? "de"_s : catalogue.mid(9, 5)));
            DialogMain window;
            DialogConfirm question(&window);
            DialogGamma gamma(&window);
            DialogAbout about(&window);
            DialogClock clock(&window);
            DialogFanTempParam fan(&window);
            DialogPreference preference(&window);
            const QAbstractItemView *const days =
                clock.findChild<QDateTimeEdit *>()->calendarWidget()->findChild<QTableView *>();
            for (QWidget *shown : QApplication::topLevelWidgets()) {
                shown->show();
                shown->grab();
            }
            // The toolkit's hint counts the margins, of three dots each, twice.
            for (int day = 0; day < 7; ++day) {
                if (days->sizeHintForColumn(day) - 6 > days->viewport()->width() / 7)
                    WatchfulStyle::cutTexts << days->model()->index(0, day).data().toString();
            }
            QCOMPARE(catalogue + WatchfulStyle::cutTexts.join(u','), catalogue);
            if (!isWordy && about.logicalDpiX() == 96) {
                const auto *form = about.findChild<QWidget *>("layoutWidget"_s);
                QCOMPARE(about.size(), QSize(386, 193));
                QCOMPARE(form->geometry(), QRect(12, 13, 361, 131));
                QCOMPARE(about.findChild<QDialogButtonBox *>()->geometry(),
                         QRect(50, 150, 325, 23));
            }
            for (const auto *box : window.findChildren<QAbstractSpinBox *>())
                QVERIFY(box->isHidden() || box->width() >= box->minimumSizeHint().width());
            // The question comes when the smallest mode may be on the screen: 800 x 600, less the
            // frame.
            QVERIFY(question.width() <= 784 && question.height() <= 560);
        }
    }
};

QTEST_MAIN(TestWindows)
#include "tst_windows.moc"
