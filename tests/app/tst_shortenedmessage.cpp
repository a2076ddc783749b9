// SPDX-License-Identifier: MIT
#include "app/shortenedmessage.h"

#include <QtTest>

namespace {

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

} // namespace

class TestShortenedMessage : public QObject
{
    Q_OBJECT

private slots:
    void messages();
};

void TestShortenedMessage::messages()
{
    const auto of = [](int count, char character) {
        return QString(count, QLatin1Char(character));
    };
    const QString nine = " 1\n2\n3\n4\n5\n6\n7\n8\n9\n"_s;
    const QString rows[][2] = {
        {QString(), QString()},
        {nine + "10"_s, nine + "10"_s},
        {nine + "10\r\n"_s, nine + "10\r\n"_s},
        {nine + "10\n\n \n"_s, "1\n2\n3\n4\n5\n6\n7\n8\n9\n10"_s},
        {nine + "10\n11"_s, "1\n2\n3\n4\n5\n\u2026\n8\n9\n10\n11"_s},
        {of(10, '\r') + "x\v"_s, "x"_s},
        {of(1000, 'x'), of(1000, 'x')},
        {"a"_s + of(5000, 'x') + "b"_s,
         "a"_s + of(497, 'x') + "\n\u2026\n"_s + of(497, 'x') + "b"_s},
        {of(2000000, '\n'), QString()},
        {of(2000000, '\n') + "x"_s, "x"_s},
        {"a"_s + of(2000000, '\n') + "b"_s, "a\n\n\n\n\n\u2026\n\n\n\nb"_s},
    };
    for (const auto &[message, shown] : rows)
        QCOMPARE(shortenedMessage(message), shown);

    QCOMPARE(loggableMessage(of(65536, 'x')), of(65536, 'x'));
    QCOMPARE(loggableMessage("a"_s + of(65536, 'x') + "b"_s),
             "a"_s + of(32767, 'x') + "\n\u2026\n"_s + of(32767, 'x') + "b"_s);
}

QTEST_APPLESS_MAIN(TestShortenedMessage)
#include "tst_shortenedmessage.moc"
