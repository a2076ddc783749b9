// SPDX-License-Identifier: MIT
#include "app/shortenedmessage.h"

#include <QtTest>

class TestShortenedMessage : public QObject
{
    Q_OBJECT

private slots:
    void longMessages();
};

void TestShortenedMessage::longMessages()
{
    const QString fits = QStringLiteral("1\n2\n3\n4\n5\n6\n7\n8\n9\n 10");
    const QString ellipsis = QChar(0x2026);
    QCOMPARE(shortenedMessage(QString()), QString());
    QCOMPARE(shortenedMessage(fits), fits);
    QCOMPARE(shortenedMessage(fits + QStringLiteral("\r\n \n")), fits);
    QCOMPARE(shortenedMessage(fits + QStringLiteral("\n\n11")), fits + ellipsis);
    QCOMPARE(shortenedMessage(QString(1001, QLatin1Char('x'))).size(), 1001);
    QCOMPARE(shortenedMessage(QString(1001, QLatin1Char('x'))).right(1), ellipsis);
    const QString lineFeeds(2000000, QLatin1Char('\n'));
    QCOMPARE(shortenedMessage(lineFeeds), QString());
    QCOMPARE(shortenedMessage(lineFeeds + QLatin1Char('x')), ellipsis);
}

QTEST_APPLESS_MAIN(TestShortenedMessage)
#include "tst_shortenedmessage.moc"
