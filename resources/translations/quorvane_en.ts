<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Library</name>
    <message numerus="yes">
        <source>%n icons</source>
        <translation>
            <numerusform>%n icon</numerusform>
            <numerusform>%n icons</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quorvane::IconAdder</name>
    <message numerus="yes">
        <source>Adding %n icons…</source>
        <translation>
            <numerusform>Adding %n icon…</numerusform>
            <numerusform>Adding %n icons…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files cannot be added.</source>
        <translation>
            <numerusform>%n file cannot be added.</numerusform>
            <numerusform>%n files cannot be added.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quorvane::LibraryView</name>
    <message numerus="yes">
        <source>%n sets are selected</source>
        <translation>
            <numerusform>%n set is selected</numerusform>
            <numerusform>%n sets are selected</numerusform>
        </translation>
    </message>
</context>
</TS>
