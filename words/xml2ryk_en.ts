<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Words</name>
    <message numerus="yes">
        <source>the document has no lines, and the export ends at it: %n document(s) behind it are lost</source>
        <translation>
            <numerusform>the document has no lines, and the export ends at it: %n document behind it is lost</numerusform>
            <numerusform>the document has no lines, and the export ends at it: %n documents behind it are lost</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n good(s)</source>
        <translation>
            <numerusform>%n good</numerusform>
            <numerusform>%n goods</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n offer(s)</source>
        <translation>
            <numerusform>%n offer</numerusform>
            <numerusform>%n offers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s)</source>
        <translation>
            <numerusform>%n document</numerusform>
            <numerusform>%n documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n order line(s)</source>
        <translation>
            <numerusform>%n order line</numerusform>
            <numerusform>%n order lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n partner(s) without an order</source>
        <translation>
            <numerusform>%n partner without an order</numerusform>
            <numerusform>%n partners without an order</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n error</numerusform>
            <numerusform>%n errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n loss(es)</source>
        <translation>
            <numerusform>%n loss</numerusform>
            <numerusform>%n losses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n doubt(s)</source>
        <translation>
            <numerusform>%n doubt</numerusform>
            <numerusform>%n doubts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more, which --all shows</source>
        <translation>
            <numerusform>%n more, which --all shows</numerusform>
            <numerusform>%n more, which --all shows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the old file is kept: it has %n good(s), the new one would have %1</source>
        <translation>
            <numerusform>the old file is kept: it has %n good, the new one would have %1</numerusform>
            <numerusform>the old file is kept: it has %n goods, the new one would have %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the old file is kept: it has %n document(s), the new one would have %1</source>
        <translation>
            <numerusform>the old file is kept: it has %n document, the new one would have %1</numerusform>
            <numerusform>the old file is kept: it has %n documents, the new one would have %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) are on the clipboard.</source>
        <translation>
            <numerusform>%n line is on the clipboard.</numerusform>
            <numerusform>%n lines are on the clipboard.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <translation>
            <numerusform>%n shown</numerusform>
            <numerusform>%n shown</numerusform>
        </translation>
    </message>
</context>
</TS>
