// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The framebuffer device, one for the whole program. Failures are logged here, at critical level
// and with the system's reason where it gives one.
class FbDevice
{
public:
    // The path of the box's framebuffer.
    static inline const QString DEV_NAME = QStringLiteral("/dev/fb0");

    // The shared device, made on first use.
    static FbDevice *Instance();

    // Closes and deletes the shared device; the next Instance makes a new one.
    static void ReleaseInstance();

    // Opens the file for reading and writing. True at once when a file is open already.
    [[nodiscard]] bool OpenDevice(const QString &name);

    // Closes the file; true when none is open. On false it counts as open still.
    [[nodiscard]] bool CloseDevice();

    // Gives the driver the curve for a gamma, any float. False when the driver does not take it
    // or no file is open.
    [[nodiscard]] bool SetGamma(float gamma);

    // Writes the driver's variable screen information to the debug log. False when the driver
    // does not give it or no file is open.
    [[nodiscard]] bool GetVarScreenInfo();

private:
    FbDevice() = default;
    ~FbDevice();
    Q_DISABLE_COPY(FbDevice)

    static FbDevice *s_instance;

    int m_fd = -1;
    QString m_name; // given to the last OpenDevice
};
