#!/bin/sh
#usage: ./calclock.sh datetime_string
#	Param1: date time string, format like "yyyy-MM-dd HH:mm:ss"
#
#   e.g. ./calclock.sh '2015-01-01 12:01:02'

set -e
echo "Calibrating date time: $*"
date -s "$1"
echo "Syncing hard clock..."
hwclock -w
exit 0
echo "exit 0"
