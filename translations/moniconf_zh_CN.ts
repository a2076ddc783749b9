<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About...</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Copyright (C) 2013-%1 Orvex</source>
        <extracomment>%1 is the year that the box&apos;s clock shows. Orvex is the maker&apos;s name.</extracomment>
        <translation>版权所有 (C) 2013-%1 Orvex</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>保留所有权利。</translation>
    </message>
    <message>
        <source>Barcode: %1</source>
        <translation>产品条码：%1</translation>
    </message>
    <message>
        <source>Rootfs Version: %1</source>
        <translation>根文件系统版本：%1</translation>
    </message>
    <message>
        <source>Rootfs Patch: %1</source>
        <translation>根文件系统补丁：%1</translation>
    </message>
</context>
<context>
    <name>DialogClock</name>
    <message>
        <source>Setting Date Time</source>
        <translation>设置日期和时间</translation>
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
        <translation>提示</translation>
    </message>
    <message>
        <source>Does the display look OK?</source>
        <translation>显示是否正常？</translation>
    </message>
    <message>
        <source>The display will be reset to its previous configuration in 30 seconds</source>
        <translation>30 秒后将恢复之前的显示设置</translation>
    </message>
    <message>
        <source>Restore Previous Configuration</source>
        <translation>恢复之前的设置</translation>
    </message>
    <message>
        <source>Keep This Configuration</source>
        <translation>保留当前设置</translation>
    </message>
    <message>
        <source>The display will be reset to its previous configuration in %1 seconds</source>
        <translation>%1 秒后将恢复之前的显示设置</translation>
    </message>
</context>
<context>
    <name>DialogFanTempParam</name>
    <message>
        <source>Parameter Input Dialog</source>
        <translation>风扇温度设置</translation>
    </message>
    <message>
        <source>Temperature Lower Threshold:</source>
        <translation>温度下限：</translation>
    </message>
    <message>
        <source>Temperature Upper Threshold:</source>
        <translation>温度上限：</translation>
    </message>
</context>
<context>
    <name>DialogGamma</name>
    <message>
        <source>Dialog</source>
        <extracomment>The title of the dialog that asks for the gamma.</extracomment>
        <translation>伽马校正</translation>
    </message>
    <message>
        <source>Gamma:</source>
        <translation>伽马值：</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
</context>
<context>
    <name>DialogMain</name>
    <message>
        <source>Display Settings</source>
        <translation>显示设置</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>List all resolutions</source>
        <translation>列出所有分辨率</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>2015-01-01 15:01:02</source>
        <extracomment>A sample of what the clock shows, in the form that it has in every language. Stays as it is.</extracomment>
        <translation>2015-01-01 15:01:02</translation>
    </message>
    <message>
        <source>Upgrade Application</source>
        <translation>升级应用程序</translation>
    </message>
    <message>
        <source>Upgrade File System</source>
        <translation>升级文件系统</translation>
    </message>
    <message>
        <source>Preference</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Factory Reset</source>
        <translation>恢复出厂设置</translation>
    </message>
    <message>
        <source>Fan Setting</source>
        <translation>风扇设置</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Please Input Instruction</source>
        <translation>输入指令</translation>
    </message>
    <message>
        <source>The feature is protected by instruction!</source>
        <translation>此功能受保护，请输入指令：</translation>
    </message>
    <message>
        <source>Unkown instruction!</source>
        <extracomment>Misspelt in English, as support knows it: see docs/compatibility.md.</extracomment>
        <translation>指令无效！</translation>
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
        <extracomment>English lacks a word, as support knows it: see docs/compatibility.md.</extracomment>
        <translation>确定要恢复出厂设置吗？</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Parameters have been changed, reboot to take effect.</source>
        <translation>参数已更改，重启后生效。</translation>
    </message>
    <message>
        <source>Cannot parse resolution string.</source>
        <translation>无法识别分辨率，请先选择一项。</translation>
    </message>
    <message>
        <source>Setting date time failed.</source>
        <translation>日期和时间设置失败。</translation>
    </message>
    <message>
        <source>Cannot read edid information.</source>
        <translation>无法读取 EDID 信息。</translation>
    </message>
    <message>
        <source>Parsing edid information failed.</source>
        <translation>无法解析 EDID 信息。</translation>
    </message>
    <message>
        <source>Getting current display information failed.</source>
        <translation>无法获取当前显示信息。</translation>
    </message>
    <message>
        <source>Please select application</source>
        <translation>请选择应用程序</translation>
    </message>
    <message>
        <source>Chinese</source>
        <extracomment>Stays as it is in every language: the choice is compared with this very word.</extracomment>
        <translation>Chinese</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>Stays as it is in every language: the choice is compared with this very word.</extracomment>
        <translation>English</translation>
    </message>
</context>
<context>
    <name>DialogPreference</name>
    <message>
        <source>Preference</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Auto Start Application</source>
        <translation>开机自启动应用程序</translation>
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
        <translation>错误</translation>
    </message>
    <message>
        <source>Setting auto boot application failed.</source>
        <translation>设置开机自启动应用程序失败。</translation>
    </message>
</context>
</TS>
