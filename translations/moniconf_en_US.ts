<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- The source's texts are English, so there is nothing to translate; the program looks for the file. -->
<TS version="2.1" language="en_US">
</TS>
