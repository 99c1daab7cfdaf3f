<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>core</name>
    <message>
        <source>This desktop shows no status icons. Start Kinesta again to come back to this window.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kinesta::KinestaWindow</name>
    <message>
        <source>Report copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kinesta::RuleEditorPage</name>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kinesta::RuleFiles</name>
    <message>
        <source>Rule files (*.json);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be read: %2. Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported 1 rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Imported %1 rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, of which %2 stay off until they are complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported to “%1”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>kinesta::UpdateDialog</name>
    <message>
        <source>Software Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kinesta is up to date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no newer version for this system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kinesta %1 is available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download has %1. Kinesta checks its signature and installs nothing by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading Kinesta %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking the signature…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kinesta %1 is ready to install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its signature is genuine. The file is here:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kinesta could not be updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
