#!/bin/sh
#usage: ./autobootapp.sh desktop_name1 desktop_name2
#	Param1-N: app desktop file name, e.g. "vexastd.desktop", only $1 set to auto boot.
#

set -e
pushd /etc/xdg/autostart/
if [ ! -L "$1" ]; then
    echo "Create symbol link: $1"
    ln -s /usr/share/applications/$1 $1
fi

cnt=$#
for ((i=1; i<=cnt; i++))
do
    if [ $i -gt 1 ]; then
        lnk=$1
        if [ -e "$lnk" ]; then
            echo "Remove symbol link $lnk..."
            rm -rf $lnk
        fi
    fi
    shift
done
popd

exit 0
