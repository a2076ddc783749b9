// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// A device file opened for reading and writing by its path. A failure is logged here, at critical
// level, and kept as a text for the caller.
class BaseDevice
{
public:
    BaseDevice() = default;

    // Opens the file. True at once when a file is open already, whatever its path: the first one
    // stays. False when it cannot be opened; GetErrorString says which.
    [[nodiscard]] virtual bool OpenDevice(const QString &name);

    // The text of the last failure to open or close, empty when there was none.
    virtual QString GetErrorString() const;

    // Closes the file.
    virtual ~BaseDevice();

    // Closes the file; true when none is open. On false the descriptor is left as it was.
    [[nodiscard]] bool CloseDevice();

    // The open file's descriptor, -1 while closed. It stays this object's to close.
    int Descriptor() const { return m_fd; }

    // Writes len bytes and returns len; 0 at once for a len below 1. It does not give up: as long
    // as the device takes nothing, or is not open, it does not return.
    [[nodiscard]] int WriteBytes(const char *data, int len);

    // Writes the text in UTF-8, as WriteBytes does. True when as many bytes were written as the
    // text has characters, so a text outside ASCII gives false although all of it is written.
    [[nodiscard]] bool WriteString(const QString &text);

    // Reads len bytes into buf and returns len; 0 at once for a len below 1. It does not give up:
    // as long as the device gives nothing, the end of a file included, it does not return.
    [[nodiscard]] int ReadBytes(char *buf, int len);

    // Reads as ReadBytes does; true when len bytes were read, so false for a negative len.
    [[nodiscard]] bool ReadExact(char *buf, int len);

private:
    Q_DISABLE_COPY(BaseDevice)

    int m_fd = -1;
    QString m_name; // given to the last OpenDevice
    QString m_errorString;
};
