// SPDX-License-Identifier: MIT
// Shows what a monitor says of itself and which modes the tool would offer for it.
#include "display/monitor/edid.h"
#include "display/monitor/edidtransfer.h"
#include "display/monitor/modes.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <getopt.h>
#include <iterator>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr char HELP[] =
    R"(Usage: moniconf-edid [--modes] [--bus /dev/i2c-N] [--] [FILE...]
Prints what a monitor says of itself in its EDID block.

  FILE              a file that begins with the 128 bytes of a block;
                    - is standard input
  --bus /dev/i2c-N  the monitor on that I2C adapter. Switched lines must be led
                    to it first: write 1 to the connector's switch, which is
                    /sys/class/leds/vga-i2c-enb/brightness for VGA
  --modes           prints the modes that moniconf offers for the monitor
                    instead, and on standard error why it offers no more
  --help            prints this text

The status is 0 if all went well, 1 if something was not a valid block or has
no usable timing for --modes, 2 after bad use or if something cannot be read
or written.
)";

constexpr int STATUS_WELL = 0;
constexpr int STATUS_NOT_VALID = 1;
constexpr int STATUS_TROUBLE = 2;

struct Source
{
    std::string name;
    bool isBus;
};

struct Request
{
    std::vector<Source> sources;
    bool modes = false;
    bool help = false;
};

void say(const std::string &text)
{
    std::fflush(stdout); // keeps the order where both go to one place
    std::fprintf(stderr, "moniconf-edid: %s\n", text.c_str());
}

// False after bad use, which has then been explained.
bool readCommandLine(int argc, char **argv, Request &request)
{
    constexpr int PLAIN_ARGUMENT = 1; // getopt's own, asked for with "-"
    const option options[] = {{"bus", required_argument, nullptr, 'b'},
                              {"modes", no_argument, nullptr, 'm'},
                              {"help", no_argument, nullptr, 'h'},
                              {nullptr, 0, nullptr, 0}};
    for (;;) {
        switch (getopt_long(argc, argv, "-", options, nullptr)) {
        case 'b':
            request.sources.push_back({optarg, true});
            break;
        case 'm':
            request.modes = true;
            break;
        case 'h':
            request.help = true;
            return true;
        case PLAIN_ARGUMENT:
            request.sources.push_back({optarg, false});
            break;
        case -1:
            for (; optind < argc; ++optind)
                request.sources.push_back({argv[optind], false});
            if (request.sources.empty())
                say("no file and no bus given; --help says more");
            return !request.sources.empty();
        default: // getopt has said what is wrong
            say("--help says more");
            return false;
        }
    }
}

// Reads up to a block. Bytes read, fewer at the end of the file; -1 with errno when that fails.
int readFile(int fd, unsigned char *block)
{
    int size = 0;
    while (size < EDID_BLOCK_SIZE) {
        const auto count = int(read(fd, block + size, std::size_t(EDID_BLOCK_SIZE - size)));
        if (count == 0)
            break;
        if (count > 0)
            size += count;
        else if (errno != EINTR)
            return -1;
    }
    return size;
}

int readBus(int fd, unsigned char *block)
{
    errno = EIO; // for a transfer that ends half-way, which sets none
    const bool ok = readEdidBlock(fd, EDID_SLAVE_ADDRESS, block, EDID_BLOCK_SIZE) == 0;
    return ok ? EDID_BLOCK_SIZE : -1;
}

// As readFile.
int readSource(const Source &source, unsigned char *block)
{
    if (!source.isBus && source.name == "-")
        return readFile(STDIN_FILENO, block);

    const int fd = open(source.name.c_str(), (source.isBus ? O_RDWR : O_RDONLY) | O_CLOEXEC);
    if (fd < 0)
        return -1;
    const int size = source.isBus ? readBus(fd, block) : readFile(fd, block);
    const int error = errno;
    close(fd);
    errno = error;
    return size;
}

// Why a list of modes is this one and ends where it does.
void explain(const std::string &name, const T_NativeTiming &native, const T_MonitorModes &modes)
{
    const std::string size = std::to_string(native.width) + "x" + std::to_string(native.height);
    say(name + ": native size " + size +
        (modes.isNormal ? " counts as 4:3 or 5:4: table of "
                        : " is neither 4:3 nor 5:4: table of ") +
        (modes.isNormal ? std::to_string(std::size(NORMAL_RESOLUTIONS)) + " normal modes"
                        : std::to_string(std::size(WIDE_RESOLUTIONS)) + " wide modes"));
    if (modes.tooLarge == nullptr) {
        say(name + ": the list ends with that table");
        return;
    }
    const T_ResolutionEntry &next = *modes.tooLarge;
    say(name + ": the list stops before " + modeItemText(next.mode()) + ", which has " +
        std::to_string(next.pixelCount()) + " pixels, more than the " +
        std::to_string(native.width * native.height) + " of " + size);
}

int showModes(const std::string &name, const std::string &title, const unsigned char *block)
{
    T_NativeTiming native;
    if (checkEdidHeader(block) != 0) {
        say(name + ": not a valid EDID block");
        return STATUS_NOT_VALID;
    }
    if (getNativeTiming(block, native) != 0) {
        say(name + ": no usable detailed timing, so the native size is unknown");
        return STATUS_NOT_VALID;
    }

    const T_MonitorModes modes = monitorModes(native);
    std::fputs(title.c_str(), stdout);
    for (const T_ResolutionEntry &entry : modes.entries)
        std::puts(modeItemText(entry.mode()).c_str());
    explain(name, native, modes);
    return STATUS_WELL;
}

int showDump(const std::string &title, const unsigned char *block)
{
    std::fputs(title.c_str(), stdout);
    printEdid(block);
    return checkEdidHeader(block) == 0 ? STATUS_WELL : STATUS_NOT_VALID;
}

int show(const Source &source, const Request &request)
{
    const std::string name = !source.isBus && source.name == "-" ? "standard input" : source.name;
    // Read as a file, an adapter gives bytes of whatever answers at its last address, or fails.
    if (!source.isBus && name.rfind("/dev/i2c-", 0) == 0) {
        say(name + " is an I2C adapter, type: --bus " + name);
        return STATUS_TROUBLE;
    }
    unsigned char bytes[EDID_BLOCK_SIZE] = {};
    const int size = readSource(source, bytes);
    if (size < 0) {
        say(name + ": " + std::strerror(errno));
        return STATUS_TROUBLE;
    }
    if (size < EDID_BLOCK_SIZE)
        say(name + ": only " + std::to_string(size) + " of the 128 bytes of a block");

    const unsigned char *block = size < EDID_BLOCK_SIZE ? nullptr : bytes;
    const std::string title = request.sources.size() > 1 ? name + ":\n" : std::string();
    return request.modes ? showModes(name, title, block) : showDump(title, block);
}

} // namespace

int main(int argc, char **argv)
{
    Request request;
    if (!readCommandLine(argc, argv, request))
        return STATUS_TROUBLE;

    int status = STATUS_WELL;
    if (request.help) {
        std::fputs(HELP, stdout);
    } else {
        for (const Source &source : request.sources)
            status = std::max(status, show(source, request));
    }

    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        say("cannot write to standard output");
        status = STATUS_TROUBLE;
    }
    return status;
}
