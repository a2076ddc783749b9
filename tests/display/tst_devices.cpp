// SPDX-License-Identifier: MIT
#include "display/fbdevice.h"
#include "display/i2cdevice.h"

#include "tests/support/logcapture.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

class TestDevices : public QObject
{
    Q_OBJECT

private slots:
    void opensOnceAndWrites();
    void baseDeviceFailures();
    void fbDeviceFailures();

private:
    QString newFile(const char *name) const;

    const QTemporaryDir m_directory;
};

// A file that holds "ab".
QString TestDevices::newFile(const char *name) const
{
    QFile file(m_directory.filePath(QString::fromLatin1(name)));
    file.open(QIODevice::WriteOnly);
    file.write("ab");
    return file.fileName();
}

void TestDevices::opensOnceAndWrites()
{
    QFile first(newFile("first"));
    QFile second(newFile("second"));
    I2CDevice device;
    QVERIFY(device.CloseDevice());
    QVERIFY(device.OpenDevice(first.fileName()));
    QVERIFY(device.OpenDevice(second.fileName()));
    QVERIFY(device.WriteString(QStringLiteral("1")));
    QVERIFY(first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly));
    QCOMPARE(first.readAll(), QByteArray("1b"));
    QCOMPARE(second.readAll(), QByteArray("ab"));

    QVERIFY(device.CloseDevice());
    QVERIFY(device.CloseDevice());
}

void TestDevices::baseDeviceFailures()
{
    const LogCapture log;
    BaseDevice device;
    QVERIFY(!device.OpenDevice(QStringLiteral("/nowhere/%1")));
    QCOMPARE(device.GetErrorString(), QStringLiteral("Error opening /nowhere/%1. "));
    QCOMPARE(device.Descriptor(), -1);
    QCOMPARE(log.messages().last().function,
             QStringLiteral("virtual bool BaseDevice::OpenDevice(const QString&)"));

    QVERIFY(device.OpenDevice(newFile("closed")));
    const int descriptor = device.Descriptor();
    ::close(descriptor);
    QVERIFY(!device.CloseDevice());
    QCOMPARE(device.Descriptor(), descriptor);
    QCOMPARE(device.GetErrorString(), QStringLiteral("Close file error. Errno is: 9"));
    QCOMPARE(log.texts(QStringLiteral("basedevice")),
             QStringList({QStringLiteral("C \"Error opening /nowhere/%1. \""),
                          QStringLiteral("C \"Close file error. Errno is: 9\"")}));
}

void TestDevices::fbDeviceFailures()
{
    constexpr unsigned long SET_GAMMA = 0x40844628;
    if (::ioctl(-1, SET_GAMMA) == -1 && errno == ENOSYS)
        QSKIP("this machine is emulated by something that does not know the request");
    const LogCapture log;
    FbDevice *const device = FbDevice::Instance();
    QVERIFY(device->CloseDevice());
    QVERIFY(!device->OpenDevice(QStringLiteral("/nowhere/%1")));
    QVERIFY(!device->SetGamma(1.0F));
    const int descriptor = ::dup(0); // the next that is free
    ::close(descriptor);
    QVERIFY(FbDevice::Instance()->OpenDevice(newFile("no framebuffer")));
    QCOMPARE(::fcntl(descriptor, F_GETFL) & O_ACCMODE, O_RDWR);
    QVERIFY(device->OpenDevice(QStringLiteral("/nowhere/ignored")));
    QVERIFY(!device->SetGamma(1.0F));
    QVERIFY(!device->GetVarScreenInfo());
    ::close(descriptor);
    QVERIFY(!device->CloseDevice());
    FbDevice::ReleaseInstance(); // tries again
    QCOMPARE(log.texts(QStringLiteral("fbdevice")),
             QStringList({
                 QStringLiteral("C Error opening \"/nowhere/%1\". "),
                 QStringLiteral("C Ioctl MXCFB_SET_GAMMA fail! Bad file descriptor"),
                 QStringLiteral("C Ioctl MXCFB_SET_GAMMA fail! Inappropriate ioctl for device"),
                 QStringLiteral("C Ioctl FBIOGET_VSCREENINFO fail! Inappropriate ioctl for device"),
                 QStringLiteral("C Close file error. Bad file descriptor"),
                 QStringLiteral("C Close file error. Bad file descriptor"),
             }));
}

QTEST_GUILESS_MAIN(TestDevices)
#include "tst_devices.moc"
