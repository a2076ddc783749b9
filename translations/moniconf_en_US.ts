<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About...</source>
        <translation>About...</translation>
    </message>
    <message>
        <source>Copyright (C) 2013-%1 Orvex</source>
        <extracomment>%1 is the year that the box&apos;s clock shows. Orvex is the maker&apos;s name.</extracomment>
        <translation>Copyright (C) 2013-%1 Orvex</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>All rights reserved.</translation>
    </message>
    <message>
        <source>Barcode: %1</source>
        <translation>Barcode: %1</translation>
    </message>
    <message>
        <source>Rootfs Version: %1</source>
        <translation>Rootfs Version: %1</translation>
    </message>
    <message>
        <source>Rootfs Patch: %1</source>
        <translation>Rootfs Patch: %1</translation>
    </message>
</context>
<context>
    <name>DialogClock</name>
    <message>
        <source>Setting Date Time</source>
        <translation>Setting Date Time</translation>
    </message>
    <message>
        <source>yyyy-MM-dd H:mm:ss</source>
        <extracomment>The toolkit&apos;s letters for a date and time of day, not words. Only their order and what stands between them may change.</extracomment>
        <translation>yyyy-MM-dd H:mm:ss</translation>
    </message>
</context>
<context>
    <name>DialogConfirm</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Does the display look OK?</source>
        <translation>Does the display look OK?</translation>
    </message>
    <message>
        <source>The display will be reset to its previous configuration in 30 seconds</source>
        <translation>The display will be reset to its previous configuration in 30 seconds</translation>
    </message>
    <message>
        <source>Restore Previous Configuration</source>
        <translation>Restore Previous Configuration</translation>
    </message>
    <message>
        <source>Keep This Configuration</source>
        <translation>Keep This Configuration</translation>
    </message>
    <message>
        <source>The display will be reset to its previous configuration in %1 seconds</source>
        <translation>The display will be reset to its previous configuration in %1 seconds</translation>
    </message>
</context>
<context>
    <name>DialogFanTempParam</name>
    <message>
        <source>Parameter Input Dialog</source>
        <translation>Parameter Input Dialog</translation>
    </message>
    <message>
        <source>Temperature Lower Threshold:</source>
        <translation>Temperature Lower Threshold:</translation>
    </message>
    <message>
        <source>Temperature Upper Threshold:</source>
        <translation>Temperature Upper Threshold:</translation>
    </message>
</context>
<context>
    <name>DialogGamma</name>
    <message>
        <source>Dialog</source>
        <extracomment>The title of the dialog that asks for the gamma.</extracomment>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Gamma:</source>
        <translation>Gamma:</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>DialogMain</name>
    <message>
        <source>Display Settings</source>
        <translation>Display Settings</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>List all resolutions</source>
        <translation>List all resolutions</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Chinese</source>
        <extracomment>Stays as it is in every language: the choice is compared with this very word, and under another name every choice would mean English.</extracomment>
        <translation>Chinese</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>Stays as it is in every language, like the item above it.</extracomment>
        <translation>English</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>2015-01-01 15:01:02</source>
        <extracomment>A sample of what the clock shows, in the form that it has in every language. Stays as it is.</extracomment>
        <translation>2015-01-01 15:01:02</translation>
    </message>
    <message>
        <source>Upgrade Application</source>
        <translation>Upgrade Application</translation>
    </message>
    <message>
        <source>Upgrade File System</source>
        <translation>Upgrade File System</translation>
    </message>
    <message>
        <source>Preference</source>
        <translation>Preference</translation>
    </message>
    <message>
        <source>Factory Reset</source>
        <translation>Factory Reset</translation>
    </message>
    <message>
        <source>Fan Setting</source>
        <translation>Fan Setting</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Please Input Instruction</source>
        <translation>Please Input Instruction</translation>
    </message>
    <message>
        <source>The feature is protected by instruction!</source>
        <translation>The feature is protected by instruction!</translation>
    </message>
    <message>
        <source>Unkown instruction!</source>
        <extracomment>The misspelling is part of the interface: the English catalogue keeps it.</extracomment>
        <translation>Unkown instruction!</translation>
    </message>
    <message>
        <source>vexastd</source>
        <extracomment>The name of an application; it stays as it is.</extracomment>
        <translation>vexastd</translation>
    </message>
    <message>
        <source>vxotp</source>
        <extracomment>The name of an application; it stays as it is.</extracomment>
        <translation>vxotp</translation>
    </message>
    <message>
        <source>Are sure to factory reset?</source>
        <extracomment>The missing word is part of the interface: the English catalogue keeps the text as it is.</extracomment>
        <translation>Are sure to factory reset?</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>Query</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Parameters have been changed, reboot to take effect.</source>
        <translation>Parameters have been changed, reboot to take effect.</translation>
    </message>
    <message>
        <source>Cannot parse resolution string.</source>
        <translation>Cannot parse resolution string.</translation>
    </message>
    <message>
        <source>Setting date time failed.</source>
        <translation>Setting date time failed.</translation>
    </message>
    <message>
        <source>Cannot read edid information.</source>
        <translation>Cannot read edid information.</translation>
    </message>
    <message>
        <source>Parsing edid information failed.</source>
        <translation>Parsing edid information failed.</translation>
    </message>
    <message>
        <source>Getting current display information failed.</source>
        <translation>Getting current display information failed.</translation>
    </message>
    <message>
        <source>Please select application</source>
        <translation>Please select application</translation>
    </message>
</context>
<context>
    <name>DialogPreference</name>
    <message>
        <source>Preference</source>
        <translation>Preference</translation>
    </message>
    <message>
        <source>Auto Start Application</source>
        <translation>Auto Start Application</translation>
    </message>
    <message>
        <source>vexastd</source>
        <extracomment>The name of an application; it stays as it is.</extracomment>
        <translation>vexastd</translation>
    </message>
    <message>
        <source>vxotp</source>
        <extracomment>The name of an application; it stays as it is.</extracomment>
        <translation>vxotp</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Setting auto boot application failed.</source>
        <translation>Setting auto boot application failed.</translation>
    </message>
</context>
</TS>
