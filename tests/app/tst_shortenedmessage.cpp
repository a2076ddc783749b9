// SPDX-License-Identifier: MIT
#include "app/shortenedmessage.h"
#include "tests/support/text.h"

#include <QtTest>

class TestShortenedMessage : public QObject
{
    Q_OBJECT

private slots:
    void messages()
    {
        const QString nine = " 1\n2\n3\n4\n5\n6\n7\n8\n9\n"_s;
        const QString x = "x"_s;
        const QString emptyLines = "\n"_s.repeated(2000000);
        const QString rows[][2] = {
            {nine + "10\r\n"_s, nine + "10\r\n"_s},
            {nine + "10\n\n \n"_s, "1\n2\n3\n4\n5\n6\n7\n8\n9\n10"_s},
            {nine + "10\n11"_s, "1\n2\n3\n4\n5\n\u2026\n8\n9\n10\n11"_s},
            {"\r"_s.repeated(10) + "x\v"_s, x},
            {x.repeated(1000), x.repeated(1000)},
            {u'a' + x.repeated(5000) + u'b',
             u'a' + x.repeated(497) + "\n\u2026\n"_s + x.repeated(497) + u'b'},
            {emptyLines, QString()},
            {u'a' + emptyLines + u'b', "a\n\n\n\n\n\u2026\n\n\n\nb"_s},
        };
        for (const auto &[message, shown] : rows)
            QCOMPARE(shortenedMessage(message), shown);

        QCOMPARE(loggableMessage(x.repeated(65536)), x.repeated(65536));
        QCOMPARE(loggableMessage(u'a' + x.repeated(65536) + u'b'),
                 u'a' + x.repeated(32767) + "\n\u2026\n"_s + x.repeated(32767) + u'b');
    }
};

QTEST_APPLESS_MAIN(TestShortenedMessage)
#include "tst_shortenedmessage.moc"
