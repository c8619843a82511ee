<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>DataFileOpener</name>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n row</numerusform>
            <numerusform>%n rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n list(s)</source>
        <translation>
            <numerusform>%n list</numerusform>
            <numerusform>%n lists</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ListTransfer</name>
    <message numerus="yes">
        <source>The import was cancelled. %n row(s) are in the list already.</source>
        <translation>
            <numerusform>The import was cancelled. %n row is in the list already.</numerusform>
            <numerusform>The import was cancelled. %n rows are in the list already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are in the file. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>This list can be read only in part: %n row is in the file. &quot;quillory restore&quot; lists copies, and what can be saved.</numerusform>
            <numerusform>This list can be read only in part: %n rows are in the file. &quot;quillory restore&quot; lists copies, and what can be saved.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Quillory::MergePage</name>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>And %n more.</numerusform>
            <numerusform>And %n more.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Quillory::RowsView</name>
    <message numerus="yes">
        <source>This list can be read only in part: %n row(s) are shown. &quot;quillory restore&quot; lists copies, and what can be saved.</source>
        <translation>
            <numerusform>This list can be read only in part: %n row is shown. &quot;quillory restore&quot; lists copies, and what can be saved.</numerusform>
            <numerusform>This list can be read only in part: %n rows are shown. &quot;quillory restore&quot; lists copies, and what can be saved.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n row</numerusform>
            <numerusform>%n rows</numerusform>
        </translation>
    </message>
</context>
</TS>
