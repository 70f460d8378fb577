<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>ApplyFailure</name>
    <message>
        <source>You may not change this folder. Give yourself write permission in the folder&apos;s properties, or ask its owner.</source>
        <translation>Sie dürfen diesen Ordner nicht ändern. Geben Sie sich in den Eigenschaften des Ordners Schreibrechte, oder fragen Sie den Eigentümer.</translation>
    </message>
    <message>
        <source>The disk cannot be written to. Remove its write protection, or copy the folder to another disk and brand the copy.</source>
        <translation>Auf den Datenträger kann nicht geschrieben werden. Entfernen Sie den Schreibschutz, oder kopieren Sie den Ordner auf einen anderen Datenträger und gestalten Sie die Kopie.</translation>
    </message>
    <message>
        <source>There is no room left. Delete something on this disk and try again.</source>
        <translation>Es ist kein Platz mehr frei. Löschen Sie etwas auf diesem Datenträger und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The disk does not work as it should. Make sure that it is connected, and copy what matters to another one.</source>
        <translation>Der Datenträger arbeitet nicht richtig. Prüfen Sie, ob er angeschlossen ist, und kopieren Sie Wichtiges auf einen anderen.</translation>
    </message>
    <message>
        <source>The file server does not answer. Connect to it anew, open the folder and try again.</source>
        <translation>Der Dateiserver antwortet nicht. Verbinden Sie sich neu, öffnen Sie den Ordner und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The path is too long. Move the folder to a place with a shorter path.</source>
        <translation>Der Pfad ist zu lang. Verschieben Sie den Ordner an einen Ort mit kürzerem Pfad.</translation>
    </message>
    <message>
        <source>The computer is short of memory. Close other programs and try again.</source>
        <translation>Der Arbeitsspeicher ist knapp. Schließen Sie andere Programme und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The folder is no longer there. It may have been moved or renamed: open it anew.</source>
        <translation>Der Ordner ist nicht mehr da. Vielleicht wurde er verschoben oder umbenannt: Öffnen Sie ihn neu.</translation>
    </message>
    <message>
        <source>Something is in the way that is not ours to touch. Move it away, or wait until the other program is done, and try again.</source>
        <translation>Etwas ist im Weg, das Quorvane nicht anrühren darf. Verschieben Sie es, oder warten Sie, bis das andere Programm fertig ist, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The disk cannot keep an icon with a folder. Move the folder to another disk.</source>
        <translation>Der Datenträger kann kein Symbol zu einem Ordner speichern. Verschieben Sie den Ordner auf einen anderen Datenträger.</translation>
    </message>
    <message>
        <source>The item named above cannot be used. Choose another picture, or move the item away, and try again.</source>
        <translation>Das oben genannte Objekt kann nicht verwendet werden. Wählen Sie ein anderes Bild, oder verschieben Sie das Objekt, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This should not happen. Please report it, with the text above.</source>
        <translation>Das sollte nicht vorkommen. Bitte melden Sie es mit dem obigen Text.</translation>
    </message>
    <message>
        <source>Make sure that the folder can be changed, and try again.</source>
        <translation>Stellen Sie sicher, dass der Ordner geändert werden kann, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <translation>Grund: %1</translation>
    </message>
    <message>
        <source>The icon of the folder %1 could not be set.</source>
        <translation>Das Symbol des Ordners %1 konnte nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>The former icon of the folder %1 could not be put back.</source>
        <translation>Das frühere Symbol des Ordners %1 konnte nicht wiederhergestellt werden.</translation>
    </message>
</context>
<context>
    <name>BuiltinLibrary</name>
    <message>
        <source>Soft Folders</source>
        <translation>Weiche Ordner</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Sky Blue</source>
        <translation>Himmelblau</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Limette</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>Indigo</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>Graphit</translation>
    </message>
    <message>
        <source>Crisp Folders</source>
        <translation>Klare Ordner</translation>
    </message>
    <message>
        <source>Classic Folders</source>
        <translation>Klassische Ordner</translation>
    </message>
    <message>
        <source>Dark Folders</source>
        <translation>Dunkle Ordner</translation>
    </message>
    <message>
        <source>Outlined Folders</source>
        <translation>Umrissene Ordner</translation>
    </message>
    <message>
        <source>Open Folders</source>
        <translation>Offene Ordner</translation>
    </message>
    <message>
        <source>Emblems</source>
        <translation>Embleme</translation>
    </message>
    <message>
        <source>Colourful Emblems</source>
        <translation>Bunte Embleme</translation>
    </message>
    <message>
        <source>More Emblems</source>
        <translation>Weitere Embleme</translation>
    </message>
    <message>
        <source>Shopping</source>
        <translation>Einkäufe</translation>
    </message>
    <message>
        <source>Things</source>
        <translation>Gegenstände</translation>
    </message>
    <message>
        <source>Cardboard Box</source>
        <translation>Karton</translation>
    </message>
    <message>
        <source>Open Box</source>
        <translation>Offener Karton</translation>
    </message>
    <message>
        <source>Archive Box</source>
        <translation>Archivkarton</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>Papers</source>
        <translation>Blätter</translation>
    </message>
    <message>
        <source>Notepad</source>
        <translation>Notizblock</translation>
    </message>
    <message>
        <source>Notebook</source>
        <translation>Notizbuch</translation>
    </message>
    <message>
        <source>Binder</source>
        <translation>Aktenordner</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Umschlag</translation>
    </message>
    <message>
        <source>Briefcase</source>
        <translation>Aktentasche</translation>
    </message>
    <message>
        <source>Hard Disk</source>
        <translation>Festplatte</translation>
    </message>
    <message>
        <source>Portable Drive</source>
        <translation>Externe Platte</translation>
    </message>
    <message>
        <source>Memory Card</source>
        <translation>Speicherkarte</translation>
    </message>
    <message>
        <source>USB Stick</source>
        <translation>USB-Stick</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>CD</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>white</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>, %1% opaque</source>
        <translation>, Deckkraft %1 %</translation>
    </message>
</context>
<context>
    <name>DroppedFolder</name>
    <message>
        <source>Only a folder can be dropped here.</source>
        <translation>Hier kann nur ein Ordner abgelegt werden.</translation>
    </message>
    <message>
        <source>Only one folder can be dropped at a time.</source>
        <translation>Es kann nur ein Ordner auf einmal abgelegt werden.</translation>
    </message>
    <message>
        <source>Only folders on this computer can be dropped here.</source>
        <translation>Hier können nur Ordner auf diesem Computer abgelegt werden.</translation>
    </message>
    <message>
        <source>The folder dropped does not exist.</source>
        <translation>Der abgelegte Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>Only a folder can be dropped here, not a file.</source>
        <translation>Hier kann nur ein Ordner abgelegt werden, keine Datei.</translation>
    </message>
</context>
<context>
    <name>DroppedIcons</name>
    <message>
        <source>Only files, folders and pictures can be added.</source>
        <translation>Nur Dateien, Ordner und Bilder können hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Only files on this computer can be added. Save it first.</source>
        <translation>Nur Dateien auf diesem Computer können hinzugefügt werden. Speichern Sie die Datei zuerst.</translation>
    </message>
</context>
<context>
    <name>EditHistory</name>
    <message>
        <source>Undo Typing</source>
        <translation>Rückgängig: Eingabe</translation>
    </message>
    <message>
        <source>Redo Typing</source>
        <translation>Wiederholen: Eingabe</translation>
    </message>
    <message>
        <source>Undo Move Label</source>
        <translation>Rückgängig: Beschriftung verschieben</translation>
    </message>
    <message>
        <source>Redo Move Label</source>
        <translation>Wiederholen: Beschriftung verschieben</translation>
    </message>
    <message>
        <source>Undo Font</source>
        <translation>Rückgängig: Schriftart</translation>
    </message>
    <message>
        <source>Redo Font</source>
        <translation>Wiederholen: Schriftart</translation>
    </message>
    <message>
        <source>Undo Font Size</source>
        <translation>Rückgängig: Schriftgröße</translation>
    </message>
    <message>
        <source>Redo Font Size</source>
        <translation>Wiederholen: Schriftgröße</translation>
    </message>
    <message>
        <source>Undo Colour</source>
        <translation>Rückgängig: Farbe</translation>
    </message>
    <message>
        <source>Redo Colour</source>
        <translation>Wiederholen: Farbe</translation>
    </message>
    <message>
        <source>Undo Effect</source>
        <translation>Rückgängig: Effekt</translation>
    </message>
    <message>
        <source>Redo Effect</source>
        <translation>Wiederholen: Effekt</translation>
    </message>
    <message>
        <source>Undo Line Spacing</source>
        <translation>Rückgängig: Zeilenabstand</translation>
    </message>
    <message>
        <source>Redo Line Spacing</source>
        <translation>Wiederholen: Zeilenabstand</translation>
    </message>
    <message>
        <source>Undo Shear</source>
        <translation>Rückgängig: Neigung</translation>
    </message>
    <message>
        <source>Redo Shear</source>
        <translation>Wiederholen: Neigung</translation>
    </message>
    <message>
        <source>Undo Rotation</source>
        <translation>Rückgängig: Drehung</translation>
    </message>
    <message>
        <source>Redo Rotation</source>
        <translation>Wiederholen: Drehung</translation>
    </message>
    <message>
        <source>Undo Opacity</source>
        <translation>Rückgängig: Deckkraft</translation>
    </message>
    <message>
        <source>Redo Opacity</source>
        <translation>Wiederholen: Deckkraft</translation>
    </message>
    <message>
        <source>Undo Choose Icon</source>
        <translation>Rückgängig: Symbol wählen</translation>
    </message>
    <message>
        <source>Redo Choose Icon</source>
        <translation>Wiederholen: Symbol wählen</translation>
    </message>
    <message>
        <source>Undo Reset</source>
        <translation>Rückgängig: Zurücksetzen</translation>
    </message>
    <message>
        <source>Redo Reset</source>
        <translation>Wiederholen: Zurücksetzen</translation>
    </message>
    <message>
        <source>Undo Look</source>
        <translation>Rückgängig: Vorlage</translation>
    </message>
    <message>
        <source>Redo Look</source>
        <translation>Wiederholen: Vorlage</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Undo Tint</source>
        <translation>Rückgängig: Tönung</translation>
    </message>
    <message>
        <source>Redo Tint</source>
        <translation>Wiederholen: Tönung</translation>
    </message>
    <message>
        <source>Undo Overlay</source>
        <translation>Rückgängig: Abzeichen</translation>
    </message>
    <message>
        <source>Redo Overlay</source>
        <translation>Wiederholen: Abzeichen</translation>
    </message>
    <message>
        <source>Undo Move Overlay</source>
        <translation>Rückgängig: Abzeichen verschieben</translation>
    </message>
    <message>
        <source>Redo Move Overlay</source>
        <translation>Wiederholen: Abzeichen verschieben</translation>
    </message>
    <message>
        <source>Undo Overlay Size</source>
        <translation>Rückgängig: Größe des Abzeichens</translation>
    </message>
    <message>
        <source>Redo Overlay Size</source>
        <translation>Wiederholen: Größe des Abzeichens</translation>
    </message>
    <message>
        <source>Undo Overlay Opacity</source>
        <translation>Rückgängig: Deckkraft des Abzeichens</translation>
    </message>
    <message>
        <source>Redo Overlay Opacity</source>
        <translation>Wiederholen: Deckkraft des Abzeichens</translation>
    </message>
    <message>
        <source>Undo Overlay Colour</source>
        <translation>Rückgängig: Farbe des Abzeichens</translation>
    </message>
    <message>
        <source>Redo Overlay Colour</source>
        <translation>Wiederholen: Farbe des Abzeichens</translation>
    </message>
</context>
<context>
    <name>Emblems</name>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Money</source>
        <translation>Geld</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Reisen</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Zuhause</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Gesundheit</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Hochladen</translation>
    </message>
    <message>
        <source>Cloud</source>
        <translation>Wolke</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Schloss</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>Heart</source>
        <translation>Herz</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personen</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Calendar Done</source>
        <translation>Kalender erledigt</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Games</source>
        <translation>Spiele</translation>
    </message>
    <message>
        <source>Science</source>
        <translation>Wissenschaft</translation>
    </message>
    <message>
        <source>School</source>
        <translation>Schule</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Buch</translation>
    </message>
    <message>
        <source>Idea</source>
        <translation>Idee</translation>
    </message>
    <message>
        <source>Brain</source>
        <translation>Gehirn</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Bauen</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Einkaufswagen</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Häkchen</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Coffee</source>
        <translation>Kaffee</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Fire</source>
        <translation>Feuer</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Flagge</translation>
    </message>
    <message>
        <source>Flower</source>
        <translation>Blume</translation>
    </message>
    <message>
        <source>Leaf</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>Food</source>
        <translation>Essen</translation>
    </message>
    <message>
        <source>Gift</source>
        <translation>Geschenk</translation>
    </message>
    <message>
        <source>Globe</source>
        <translation>Globus</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>Map Pin</source>
        <translation>Ortsmarke</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Moon</source>
        <translation>Mond</translation>
    </message>
    <message>
        <source>Paw</source>
        <translation>Pfote</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>Flugzeug</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Beleg</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>Roboter</translation>
    </message>
    <message>
        <source>Rocket</source>
        <translation>Rakete</translation>
    </message>
    <message>
        <source>Shield</source>
        <translation>Schild</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Sonne</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Abgleich</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>Ticket</source>
        <translation>Eintrittskarte</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Baum</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Trophy</source>
        <translation>Pokal</translation>
    </message>
    <message>
        <source>Truck</source>
        <translation>Lastwagen</translation>
    </message>
    <message>
        <source>Umbrella</source>
        <translation>Regenschirm</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Glocke</translation>
    </message>
    <message>
        <source>Bolt</source>
        <translation>Blitz</translation>
    </message>
    <message>
        <source>Bug</source>
        <translation>Käfer</translation>
    </message>
    <message>
        <source>Car</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Klemmbrett</translation>
    </message>
    <message>
        <source>Crown</source>
        <translation>Krone</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Diamant</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Tropfen</translation>
    </message>
    <message>
        <source>Eye</source>
        <translation>Auge</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Headphones</source>
        <translation>Kopfhörer</translation>
    </message>
    <message>
        <source>Laptop</source>
        <translation>Laptop</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Person</source>
        <translation>Person</translation>
    </message>
    <message>
        <source>Puzzle</source>
        <translation>Puzzle</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>1 icon</source>
        <translation>1 Symbol</translation>
    </message>
    <message numerus="yes">
        <source>%n icons</source>
        <translation>
            <numerusform>%n Symbol</numerusform>
            <numerusform>%n Symbole</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Looking for a New Version</source>
        <translation>Nach neuer Version suchen</translation>
    </message>
    <message>
        <source>The server has not answered yet.</source>
        <translation>Der Server hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>cannot open folder</source>
        <translation>Öffnen des Ordners nicht möglich</translation>
    </message>
    <message>
        <source>cannot open the folder above</source>
        <translation>Öffnen des übergeordneten Ordners nicht möglich</translation>
    </message>
    <message>
        <source>cannot list folder</source>
        <translation>Auflisten des Ordners nicht möglich</translation>
    </message>
    <message>
        <source>cannot look at folder</source>
        <translation>Untersuchen des Ordners nicht möglich</translation>
    </message>
    <message>
        <source>cannot look at</source>
        <translation>Untersuchen nicht möglich</translation>
    </message>
    <message>
        <source>cannot read</source>
        <translation>Lesen nicht möglich</translation>
    </message>
    <message>
        <source>cannot write</source>
        <translation>Schreiben nicht möglich</translation>
    </message>
    <message>
        <source>cannot rename</source>
        <translation>Umbenennen nicht möglich</translation>
    </message>
    <message>
        <source>cannot remove</source>
        <translation>Entfernen nicht möglich</translation>
    </message>
    <message>
        <source>cannot move</source>
        <translation>Verschieben nicht möglich</translation>
    </message>
    <message>
        <source>cannot make folder</source>
        <translation>Anlegen des Ordners nicht möglich</translation>
    </message>
    <message>
        <source>cannot keep a copy</source>
        <translation>Aufbewahren einer Kopie nicht möglich</translation>
    </message>
    <message>
        <source>cannot set times</source>
        <translation>Setzen der Zeiten nicht möglich</translation>
    </message>
    <message>
        <source>cannot flush folder</source>
        <translation>Der Ordner kann nicht auf den Datenträger geschrieben werden</translation>
    </message>
    <message>
        <source>cannot lock folder</source>
        <translation>Sperren des Ordners nicht möglich</translation>
    </message>
    <message>
        <source>cannot read attribute %1</source>
        <translation>Lesen des Attributs %1 nicht möglich</translation>
    </message>
    <message>
        <source>cannot write attribute %1</source>
        <translation>Schreiben des Attributs %1 nicht möglich</translation>
    </message>
    <message>
        <source>cannot remove attribute %1</source>
        <translation>Entfernen des Attributs %1 nicht möglich</translation>
    </message>
    <message>
        <source>cannot keep the file&apos;s properties</source>
        <translation>Die Eigenschaften der Datei können nicht erhalten werden</translation>
    </message>
    <message>
        <source>cannot keep the file&apos;s properties, attribute %1</source>
        <translation>Die Eigenschaften der Datei können nicht erhalten werden, Attribut %1</translation>
    </message>
    <message>
        <source>cannot keep the file&apos;s properties, access list</source>
        <translation>Die Eigenschaften der Datei können nicht erhalten werden, Zugriffsliste</translation>
    </message>
    <message>
        <source>cannot give the file to its owner</source>
        <translation>Die Datei kann ihrem Eigentümer nicht übergeben werden</translation>
    </message>
    <message>
        <source>a file stands there</source>
        <translation>dort liegt eine Datei</translation>
    </message>
    <message>
        <source>a folder stands there</source>
        <translation>dort liegt ein Ordner</translation>
    </message>
    <message>
        <source>a link stands there</source>
        <translation>dort liegt eine Verknüpfung</translation>
    </message>
    <message>
        <source>a fifo stands there</source>
        <translation>dort liegt eine FIFO-Datei</translation>
    </message>
    <message>
        <source>a socket stands there</source>
        <translation>dort liegt ein Socket</translation>
    </message>
    <message>
        <source>a device stands there</source>
        <translation>dort liegt eine Gerätedatei</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>es ist eine Verknüpfung</translation>
    </message>
    <message>
        <source>it is a fifo</source>
        <translation>es ist eine FIFO-Datei</translation>
    </message>
    <message>
        <source>it is a socket</source>
        <translation>es ist ein Socket</translation>
    </message>
    <message>
        <source>it is a device</source>
        <translation>es ist eine Gerätedatei</translation>
    </message>
    <message>
        <source>is no plain file</source>
        <translation>ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>mehr als %1 Byte</translation>
    </message>
    <message>
        <source>what was read back differs</source>
        <translation>beim erneuten Lesen kam etwas anderes zurück</translation>
    </message>
    <message>
        <source>it was changed by somebody else meanwhile</source>
        <translation>jemand anderes hat es inzwischen geändert</translation>
    </message>
    <message>
        <source>nested too deep</source>
        <translation>zu tief verschachtelt</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>dort ist ein anderes Dateisystem eingehängt</translation>
    </message>
    <message>
        <source>the folder was opened for looking only</source>
        <translation>der Ordner wurde nur zum Ansehen geöffnet</translation>
    </message>
    <message>
        <source>does not hold the folder any more</source>
        <translation>enthält den Ordner nicht mehr</translation>
    </message>
    <message>
        <source>has no folder above it</source>
        <translation>hat keinen übergeordneten Ordner</translation>
    </message>
    <message>
        <source>the folder was moved meanwhile</source>
        <translation>der Ordner wurde inzwischen verschoben</translation>
    </message>
    <message>
        <source>another program is changing this folder</source>
        <translation>ein anderes Programm ändert diesen Ordner gerade</translation>
    </message>
    <message>
        <source>interrupted while another program is changing this folder</source>
        <translation>abgebrochen, während ein anderes Programm diesen Ordner ändert</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>the user has no home folder</source>
        <translation>der Benutzer hat keinen persönlichen Ordner</translation>
    </message>
    <message>
        <source>&apos;%1&apos;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>empty name</source>
        <translation>leerer Name</translation>
    </message>
    <message>
        <source>&quot;.&quot; and &quot;..&quot; are no names of items</source>
        <translation>„.“ und „..“ sind keine Namen von Objekten</translation>
    </message>
    <message>
        <source>name with a slash</source>
        <translation>Name mit einem Schrägstrich</translation>
    </message>
    <message>
        <source>name with a zero byte</source>
        <translation>Name mit einem Nullbyte</translation>
    </message>
    <message>
        <source>name of %1 bytes, at most %2 are possible</source>
        <translation>Name mit %1 Byte, höchstens %2 sind möglich</translation>
    </message>
    <message>
        <source>name of %1 bytes is too long for a companion file</source>
        <translation>Name mit %1 Byte ist zu lang für eine Begleitdatei</translation>
    </message>
    <message>
        <source>path with a zero byte</source>
        <translation>Pfad mit einem Nullbyte</translation>
    </message>
    <message>
        <source>the path names no file</source>
        <translation>der Pfad nennt keine Datei</translation>
    </message>
    <message>
        <source>an absolute path leads out of the folder</source>
        <translation>ein absoluter Pfad führt aus dem Ordner hinaus</translation>
    </message>
    <message>
        <source>the path names no file in the folder</source>
        <translation>der Pfad nennt keine Datei im Ordner</translation>
    </message>
    <message>
        <source>the path leads out of the folder</source>
        <translation>der Pfad führt aus dem Ordner hinaus</translation>
    </message>
    <message>
        <source>the root of the file system is not branded</source>
        <translation>die Wurzel des Dateisystems bekommt kein Symbol</translation>
    </message>
    <message>
        <source>the system&apos;s own folders are not branded</source>
        <translation>die eigenen Ordner des Systems bekommen kein Symbol</translation>
    </message>
    <message>
        <source>what is kept of an icon&apos;s folder is not branded</source>
        <translation>was zu einem Ordnersymbol aufbewahrt wird, bekommt selbst kein Symbol</translation>
    </message>
    <message>
        <source>the folder of all homes is not branded</source>
        <translation>der Ordner aller persönlichen Ordner bekommt kein Symbol</translation>
    </message>
    <message>
        <source>a link stands where the icon&apos;s own file belongs</source>
        <translation>wo die Datei des Symbols hingehört, liegt eine Verknüpfung</translation>
    </message>
    <message>
        <source>a folder stands where the icon&apos;s own file belongs</source>
        <translation>wo die Datei des Symbols hingehört, liegt ein Ordner</translation>
    </message>
    <message>
        <source>no plain file stands where the icon&apos;s own file belongs</source>
        <translation>wo die Datei des Symbols hingehört, liegt keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>there is no picture of its kind</source>
        <translation>es gibt kein Bild dieser Art</translation>
    </message>
    <message>
        <source>there is no picture to make an icon of</source>
        <translation>es gibt kein Bild für ein Symbol</translation>
    </message>
    <message>
        <source>there is no icon of its kind</source>
        <translation>es gibt kein Symbol dieser Art</translation>
    </message>
    <message>
        <source>its icon holds no picture</source>
        <translation>sein Symbol enthält kein Bild</translation>
    </message>
    <message>
        <source>the icon&apos;s picture is missing</source>
        <translation>das Bild des Symbols fehlt</translation>
    </message>
    <message>
        <source>nothing was composed</source>
        <translation>es wurde nichts zusammengesetzt</translation>
    </message>
    <message>
        <source>holds no record of what was there before</source>
        <translation>enthält keine Aufzeichnung des früheren Zustands</translation>
    </message>
    <message>
        <source>is damaged, or was written by a newer version</source>
        <translation>ist beschädigt oder wurde von einer neueren Version geschrieben</translation>
    </message>
    <message>
        <source>stands in the way; it is not a record of ours</source>
        <translation>ist im Weg; es ist keine Aufzeichnung von Quorvane</translation>
    </message>
    <message>
        <source>the kept backup is missing</source>
        <translation>die aufbewahrte Sicherung fehlt</translation>
    </message>
    <message>
        <source>what is kept is no plain file</source>
        <translation>das Aufbewahrte ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>there is no record of the original icon</source>
        <translation>es gibt keine Aufzeichnung des ursprünglichen Symbols</translation>
    </message>
    <message>
        <source>the kept original is missing</source>
        <translation>das aufbewahrte Original fehlt</translation>
    </message>
    <message>
        <source>the record of the original icon is damaged</source>
        <translation>die Aufzeichnung des ursprünglichen Symbols ist beschädigt</translation>
    </message>
    <message>
        <source>unknown form</source>
        <translation>unbekannte Form</translation>
    </message>
    <message>
        <source>a line without a value</source>
        <translation>eine Zeile ohne Wert</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>das Ende fehlt</translation>
    </message>
    <message>
        <source>nothing about %1</source>
        <translation>nichts über %1</translation>
    </message>
    <message>
        <source>what is said of %1</source>
        <translation>die Angabe zu %1</translation>
    </message>
    <message>
        <source>the icon is too large for a resource</source>
        <translation>das Symbol ist zu groß für eine Ressource</translation>
    </message>
    <message>
        <source>has no resource fork</source>
        <translation>hat keinen Ressourcenzweig</translation>
    </message>
    <message>
        <source>there is no icon file to remove</source>
        <translation>es gibt keine Symboldatei zu entfernen</translation>
    </message>
    <message>
        <source>cannot keep the folder&apos;s Finder info</source>
        <translation>die Finder-Informationen des Ordners können nicht gespeichert werden</translation>
    </message>
    <message>
        <source>as attribute</source>
        <translation>als Attribut</translation>
    </message>
    <message>
        <source>as companion file %1</source>
        <translation>als Begleitdatei %1</translation>
    </message>
    <message>
        <source>no place</source>
        <translation>kein Ort</translation>
    </message>
    <message>
        <source>attribute %1</source>
        <translation>Attribut %1</translation>
    </message>
    <message>
        <source>it has no Finder info</source>
        <translation>es hat keine Finder-Informationen</translation>
    </message>
    <message>
        <source>companion file</source>
        <translation>Begleitdatei</translation>
    </message>
    <message>
        <source>companion file too long</source>
        <translation>Begleitdatei zu lang</translation>
    </message>
    <message>
        <source>header cut short</source>
        <translation>Kopf abgeschnitten</translation>
    </message>
    <message>
        <source>wrong magic number</source>
        <translation>falsche Kennzahl</translation>
    </message>
    <message>
        <source>unknown version</source>
        <translation>unbekannte Version</translation>
    </message>
    <message>
        <source>too many entries</source>
        <translation>zu viele Einträge</translation>
    </message>
    <message>
        <source>entry table cut short</source>
        <translation>Tabelle der Einträge abgeschnitten</translation>
    </message>
    <message>
        <source>entry outside the file</source>
        <translation>Eintrag außerhalb der Datei</translation>
    </message>
    <message>
        <source>entries overlap</source>
        <translation>Einträge überlappen sich</translation>
    </message>
    <message>
        <source>resource fork</source>
        <translation>Ressourcenzweig</translation>
    </message>
    <message>
        <source>resource fork too long</source>
        <translation>Ressourcenzweig zu lang</translation>
    </message>
    <message>
        <source>data or map outside the fork</source>
        <translation>Daten oder Verzeichnis außerhalb des Zweigs</translation>
    </message>
    <message>
        <source>header, data and map overlap</source>
        <translation>Kopf, Daten und Verzeichnis überlappen sich</translation>
    </message>
    <message>
        <source>map cut short</source>
        <translation>Verzeichnis abgeschnitten</translation>
    </message>
    <message>
        <source>type list on the map&apos;s header</source>
        <translation>Typenliste auf dem Kopf des Verzeichnisses</translation>
    </message>
    <message>
        <source>type list outside the map</source>
        <translation>Typenliste außerhalb des Verzeichnisses</translation>
    </message>
    <message>
        <source>references inside the type list</source>
        <translation>Verweise innerhalb der Typenliste</translation>
    </message>
    <message>
        <source>references outside the map</source>
        <translation>Verweise außerhalb des Verzeichnisses</translation>
    </message>
    <message>
        <source>resources overlap</source>
        <translation>Ressourcen überlappen sich</translation>
    </message>
    <message>
        <source>too many resources</source>
        <translation>zu viele Ressourcen</translation>
    </message>
    <message>
        <source>name outside the map</source>
        <translation>Name außerhalb des Verzeichnisses</translation>
    </message>
    <message>
        <source>resource outside the data</source>
        <translation>Ressource außerhalb der Daten</translation>
    </message>
    <message>
        <source>data out of reach</source>
        <translation>Daten außer Reichweite</translation>
    </message>
    <message>
        <source>resource too long</source>
        <translation>Ressource zu lang</translation>
    </message>
    <message>
        <source>name too long</source>
        <translation>Name zu lang</translation>
    </message>
    <message>
        <source>too many names</source>
        <translation>zu viele Namen</translation>
    </message>
    <message>
        <source>not a property list</source>
        <translation>keine Eigenschaftsliste</translation>
    </message>
    <message>
        <source>the property list is no array</source>
        <translation>die Eigenschaftsliste ist kein Feld</translation>
    </message>
    <message>
        <source>a property list that is too long</source>
        <translation>eine zu lange Eigenschaftsliste</translation>
    </message>
    <message>
        <source>a property list with too many strings</source>
        <translation>eine Eigenschaftsliste mit zu vielen Texten</translation>
    </message>
    <message>
        <source>a property list that is nested too deep</source>
        <translation>eine zu tief verschachtelte Eigenschaftsliste</translation>
    </message>
    <message>
        <source>no memory to read a property list</source>
        <translation>kein Arbeitsspeicher zum Lesen einer Eigenschaftsliste</translation>
    </message>
    <message>
        <source>its binary form is damaged</source>
        <translation>die binäre Form ist beschädigt</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>sie ist leer</translation>
    </message>
    <message>
        <source>it ends too early</source>
        <translation>endet zu früh</translation>
    </message>
    <message>
        <source>something follows its end</source>
        <translation>nach dem Ende folgt noch etwas</translation>
    </message>
    <message>
        <source>byte %1 is out of place</source>
        <translation>Byte %1 ist fehl am Platz</translation>
    </message>
    <message>
        <source>a comment has no end</source>
        <translation>ein Kommentar hat kein Ende</translation>
    </message>
    <message>
        <source>data have no end</source>
        <translation>Daten haben kein Ende</translation>
    </message>
    <message>
        <source>a string has no end</source>
        <translation>ein Text hat kein Ende</translation>
    </message>
    <message>
        <source>it declares entities</source>
        <translation>sie deklariert Entitäten</translation>
    </message>
    <message>
        <source>it refers to an entity that is not declared</source>
        <translation>sie verweist auf eine nicht deklarierte Entität</translation>
    </message>
    <message>
        <source>its outermost element is no plist</source>
        <translation>das äußerste Element ist kein plist</translation>
    </message>
    <message>
        <source>it has two values</source>
        <translation>sie hat zwei Werte</translation>
    </message>
    <message>
        <source>an element stands in a string</source>
        <translation>in einem Text steht ein Element</translation>
    </message>
    <message>
        <source>the desktop session does not answer</source>
        <translation>die Sitzung des Desktops antwortet nicht</translation>
    </message>
    <message>
        <source>the desktop session cannot be asked</source>
        <translation>die Sitzung des Desktops kann nicht gefragt werden</translation>
    </message>
    <message>
        <source>the desktop keeps no settings</source>
        <translation>der Desktop speichert keine Einstellungen</translation>
    </message>
    <message>
        <source>the desktop did not keep the icon&apos;s name</source>
        <translation>der Desktop hat den Namen des Symbols nicht gespeichert</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>ohne Angabe eines Grundes</translation>
    </message>
    <message>
        <source>the icon&apos;s name is no text</source>
        <translation>der Name des Symbols ist kein Text</translation>
    </message>
    <message>
        <source>holds something else than text</source>
        <translation>enthält etwas anderes als Text</translation>
    </message>
    <message>
        <source>cannot read settings</source>
        <translation>Lesen der Einstellungen nicht möglich</translation>
    </message>
    <message>
        <source>cannot keep settings</source>
        <translation>Speichern der Einstellungen nicht möglich</translation>
    </message>
    <message>
        <source>cannot move aside what stands in the place of settings</source>
        <translation>was am Ort der Einstellungen liegt, kann nicht beiseitegelegt werden</translation>
    </message>
    <message>
        <source>too many are kept already</source>
        <translation>es werden schon zu viele aufbewahrt</translation>
    </message>
    <message>
        <source>it is somebody else&apos;s link</source>
        <translation>es ist die Verknüpfung eines anderen Benutzers</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>die Verknüpfung führt nirgendwohin</translation>
    </message>
    <message>
        <source>the link leads to somebody else&apos;s file</source>
        <translation>die Verknüpfung führt zur Datei eines anderen Benutzers</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>is longer than %1 bytes, no settings file</source>
        <translation>ist länger als %1 Byte, keine Einstellungsdatei</translation>
    </message>
    <message>
        <source>is no settings file</source>
        <translation>ist keine Einstellungsdatei</translation>
    </message>
    <message>
        <source>the settings are longer than %1 bytes</source>
        <translation>die Einstellungen sind länger als %1 Byte</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Die Operation ist nicht erlaubt</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Das Dateisystem ist nur lesbar</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Auf dem Datenträger ist kein Platz mehr frei</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Der zugeteilte Speicherplatz ist ausgeschöpft</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Eingabe-/Ausgabefehler</translation>
    </message>
    <message>
        <source>No such device</source>
        <translation>Das Gerät gibt es nicht</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>Das Gerät oder die Adresse gibt es nicht</translation>
    </message>
    <message>
        <source>No medium found</source>
        <translation>Kein Medium gefunden</translation>
    </message>
    <message>
        <source>Transport endpoint is not connected</source>
        <translation>Die Verbindung ist nicht hergestellt</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Zeitüberschreitung der Verbindung</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>Die Verbindung wurde abgelehnt</translation>
    </message>
    <message>
        <source>Host is down</source>
        <translation>Der Server läuft nicht</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>Kein Weg zum Server</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>Die Datei ist auf dem Server nicht mehr dieselbe</translation>
    </message>
    <message>
        <source>Remote I/O error</source>
        <translation>Eingabe-/Ausgabefehler am anderen Ende</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Der Dateiname ist zu lang</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Die Datei ist zu groß</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Die Datei existiert bereits</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Das ist kein Ordner</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Das ist ein Ordner</translation>
    </message>
    <message>
        <source>Directory not empty</source>
        <translation>Der Ordner ist nicht leer</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Das Gerät oder die Ressource wird gerade benutzt</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>Die Programmdatei wird gerade benutzt</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Ungültige Angabe</translation>
    </message>
    <message>
        <source>Invalid cross-device link</source>
        <translation>Ungültige Verknüpfung zwischen verschiedenen Datenträgern</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Zu viele aufeinanderfolgende Verknüpfungen</translation>
    </message>
    <message>
        <source>Too many links</source>
        <translation>Zu viele Verknüpfungen</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Zu viele offene Dateien</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>Zu viele offene Dateien im System</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Zu wenig Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Operation not supported</source>
        <translation>Die Operation wird nicht unterstützt</translation>
    </message>
    <message>
        <source>Function not implemented</source>
        <translation>Die Funktion ist nicht vorhanden</translation>
    </message>
    <message>
        <source>Interrupted system call</source>
        <translation>Unterbrochener Systemaufruf</translation>
    </message>
    <message>
        <source>Resource temporarily unavailable</source>
        <translation>Die Ressource ist zurzeit nicht verfügbar</translation>
    </message>
    <message>
        <source>No data available</source>
        <translation>Keine Daten verfügbar</translation>
    </message>
    <message>
        <source>Structure needs cleaning</source>
        <translation>Das Dateisystem ist beschädigt</translation>
    </message>
    <message>
        <source>Not a zip archive</source>
        <translation>kein Zip-Archiv</translation>
    </message>
    <message>
        <source>Zip archive inconsistent</source>
        <translation>das Zip-Archiv ist in sich widersprüchlich</translation>
    </message>
    <message>
        <source>Compression method not supported</source>
        <translation>das Kompressionsverfahren wird nicht unterstützt</translation>
    </message>
    <message>
        <source>CRC error</source>
        <translation>Prüfsummenfehler</translation>
    </message>
    <message>
        <source>Premature end of file</source>
        <translation>vorzeitiges Ende der Datei</translation>
    </message>
    <message>
        <source>there is no picture in the folder</source>
        <translation>im Ordner ist kein Bild</translation>
    </message>
    <message>
        <source>no picture in the folder can be read</source>
        <translation>kein Bild im Ordner ist lesbar</translation>
    </message>
    <message>
        <source>too many pictures for one set</source>
        <translation>zu viele Bilder für eine Sammlung</translation>
    </message>
    <message>
        <source>cannot be read back</source>
        <translation>kann nicht zurückgelesen werden</translation>
    </message>
    <message>
        <source>cannot read the set</source>
        <translation>Lesen der Sammlung nicht möglich</translation>
    </message>
    <message>
        <source>there is no home folder for a library</source>
        <translation>es gibt keinen persönlichen Ordner für eine Bibliothek</translation>
    </message>
    <message>
        <source>the set holds icons</source>
        <translation>die Sammlung enthält Symbole</translation>
    </message>
    <message>
        <source>the set&apos;s folder holds other files, and there is no trash for them</source>
        <translation>der Ordner der Sammlung enthält andere Dateien, und für sie gibt es keinen Papierkorb</translation>
    </message>
    <message>
        <source>%1 of the icons cannot be brought back from the trash</source>
        <translation>Symbole, die nicht aus dem Papierkorb zurückgeholt werden können: %1</translation>
    </message>
    <message>
        <source>the set cannot be brought back from the trash</source>
        <translation>die Sammlung kann nicht aus dem Papierkorb zurückgeholt werden</translation>
    </message>
    <message>
        <source>no name of a set</source>
        <translation>kein Name einer Sammlung</translation>
    </message>
    <message>
        <source>it is one of our own</source>
        <translation>Quorvane verwendet ihn selbst</translation>
    </message>
    <message>
        <source>not a zip file that can be read</source>
        <translation>keine lesbare Zip-Datei</translation>
    </message>
    <message>
        <source>an entry has no name</source>
        <translation>ein Eintrag hat keinen Namen</translation>
    </message>
    <message>
        <source>an entry has no length</source>
        <translation>ein Eintrag hat keine Länge</translation>
    </message>
    <message>
        <source>it is longer than it says</source>
        <translation>länger als angegeben</translation>
    </message>
    <message>
        <source>the zip file holds no icons</source>
        <translation>die Zip-Datei enthält keine Symbole</translation>
    </message>
    <message>
        <source>the zip file holds icons in several folders</source>
        <translation>die Zip-Datei enthält Symbole in mehreren Ordnern</translation>
    </message>
    <message>
        <source>no picture in the zip file can be read</source>
        <translation>kein Bild in der Zip-Datei ist lesbar</translation>
    </message>
    <message>
        <source>the zip file names &apos;%1&apos;, which leads elsewhere</source>
        <translation>die Zip-Datei nennt „%1“, was woandershin führt</translation>
    </message>
    <message>
        <source>the zip file holds &apos;%1&apos;, which is no plain file</source>
        <translation>die Zip-Datei enthält „%1“, was keine gewöhnliche Datei ist</translation>
    </message>
    <message>
        <source>the zip file names &apos;%1&apos; twice, or in other letters</source>
        <translation>die Zip-Datei nennt „%1“ zweimal, oder in anderer Groß- und Kleinschreibung</translation>
    </message>
    <message>
        <source>the zip file has too many entries</source>
        <translation>die Zip-Datei hat zu viele Einträge</translation>
    </message>
    <message>
        <source>the zip file is encrypted</source>
        <translation>die Zip-Datei ist verschlüsselt</translation>
    </message>
    <message>
        <source>the zip file unpacks to far more than its length</source>
        <translation>die Zip-Datei ist entpackt weit größer als ihre Länge</translation>
    </message>
    <message>
        <source>too much for one zip file</source>
        <translation>zu viel für eine Zip-Datei</translation>
    </message>
    <message>
        <source>cannot make a zip file</source>
        <translation>Erstellen einer Zip-Datei nicht möglich</translation>
    </message>
    <message>
        <source>what was made cannot be read</source>
        <translation>das Erstellte ist nicht lesbar</translation>
    </message>
    <message>
        <source>there is no such look</source>
        <translation>diese Vorlage gibt es nicht</translation>
    </message>
    <message>
        <source>there is a look named &apos;%1&apos; already</source>
        <translation>eine Vorlage „%1“ gibt es schon</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a look</source>
        <translation>„%1“ kann nicht der Name einer Vorlage sein</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;%1&quot; is no text</source>
        <translation>„%1“ der Vorlage ist kein Text</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;%1&quot; is no number</source>
        <translation>„%1“ der Vorlage ist keine Zahl</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;%1&quot; is no pair of numbers</source>
        <translation>„%1“ der Vorlage ist kein Zahlenpaar</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;%1&quot; is no base64 text</source>
        <translation>„%1“ der Vorlage ist kein Base64-Text</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;%1&quot; is no name of an effect</source>
        <translation>„%1“ der Vorlage ist kein Name eines Effekts</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;overlay&quot; and &quot;overlay-picture&quot; exclude each other</source>
        <translation>„overlay“ und „overlay-picture“ der Vorlage schließen sich aus</translation>
    </message>
    <message>
        <source>the look&apos;s &quot;overlay-picture&quot; cannot be used</source>
        <translation>„overlay-picture“ der Vorlage kann nicht verwendet werden</translation>
    </message>
    <message>
        <source>is longer than %1 bytes, no look file</source>
        <translation>ist länger als %1 Byte, keine Vorlagendatei</translation>
    </message>
    <message>
        <source>is no JSON</source>
        <translation>ist kein JSON</translation>
    </message>
    <message>
        <source>is no look file</source>
        <translation>ist keine Vorlagendatei</translation>
    </message>
    <message>
        <source>was written by a newer version of this program</source>
        <translation>wurde von einer neueren Version dieses Programms geschrieben</translation>
    </message>
    <message>
        <source>the look&apos;s base picture &apos;%1&apos;</source>
        <translation>das Basisbild „%1“ der Vorlage</translation>
    </message>
    <message>
        <source>the name of the base picture is no text that a look can hold</source>
        <translation>der Name des Basisbilds ist kein Text, den eine Vorlage enthalten kann</translation>
    </message>
    <message>
        <source>the look is longer than %1 bytes</source>
        <translation>die Vorlage ist länger als %1 Byte</translation>
    </message>
    <message>
        <source>a look refers only to pictures in its own folder or below; copy the picture there first</source>
        <translation>eine Vorlage verweist nur auf Bilder in ihrem eigenen Ordner oder darunter; kopieren Sie das Bild zuerst dorthin</translation>
    </message>
    <message>
        <source>the label&apos;s shadow is none of the effects that a look can hold</source>
        <translation>der Schatten der Beschriftung ist keiner der Effekte, die eine Vorlage enthalten kann</translation>
    </message>
    <message>
        <source>there is no emblem &apos;%1&apos;</source>
        <translation>es gibt kein Emblem „%1“</translation>
    </message>
    <message>
        <source>there is no emblem &apos;%1&apos;, did you mean &apos;%2&apos;?</source>
        <translation>es gibt kein Emblem „%1“, meinten Sie „%2“?</translation>
    </message>
    <message>
        <source>there is no effect &apos;%1&apos;; use %2</source>
        <translation>es gibt keinen Effekt „%1“; möglich sind %2</translation>
    </message>
    <message>
        <source>%1 takes a number from %2 to %3, not &apos;%4&apos;</source>
        <translation>%1 verlangt eine Zahl von %2 bis %3, nicht „%4“</translation>
    </message>
    <message>
        <source>%1 takes X,Y, numbers within a million, not &apos;%2&apos;</source>
        <translation>%1 verlangt X,Y, Zahlen bis zu einer Million, nicht „%2“</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no colour; use #rgb, #rrggbb, #rrggbbaa or a name</source>
        <translation>„%1“ ist keine Farbe; möglich sind #rgb, #rrggbb, #rrggbbaa oder ein Name</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no overlay; use emblem:NAME, emoji:X or none</source>
        <translation>„%1“ ist kein Abzeichen; möglich sind emblem:NAME, emoji:X oder none</translation>
    </message>
    <message>
        <source>takes one emoji or other character</source>
        <translation>verlangt ein Emoji oder ein anderes Zeichen</translation>
    </message>
    <message>
        <source>takes one emoji or other character, not &apos;%1&apos;</source>
        <translation>verlangt ein Emoji oder ein anderes Zeichen, nicht „%1“</translation>
    </message>
    <message>
        <source>the font&apos;s name is longer than %1 bytes</source>
        <translation>der Name der Schriftart ist länger als %1 Byte</translation>
    </message>
    <message>
        <source>no font &apos;%1&apos; is installed</source>
        <translation>die Schriftart „%1“ ist nicht installiert</translation>
    </message>
    <message>
        <source>the font &apos;%1&apos; has no style &apos;%2&apos;; it has</source>
        <translation>die Schriftart „%1“ hat keinen Schnitt „%2“; vorhanden sind</translation>
    </message>
    <message>
        <source>the label is longer than %1 bytes</source>
        <translation>die Beschriftung ist länger als %1 Byte</translation>
    </message>
    <message>
        <source>the label holds a zero byte</source>
        <translation>die Beschriftung enthält ein Nullbyte</translation>
    </message>
    <message>
        <source>there is no placeholder {%1} for labels, only {name}; a brace itself is written {{</source>
        <translation>es gibt keinen Platzhalter {%1} für Beschriftungen, nur {name}; eine Klammer selbst schreibt man {{</translation>
    </message>
    <message>
        <source>the label is not UTF-8 text</source>
        <translation>die Beschriftung ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>the picture cannot be kept in so few bytes</source>
        <translation>das Bild lässt sich nicht in so wenigen Byte speichern</translation>
    </message>
    <message>
        <source>the picture is longer than %1 bytes</source>
        <translation>das Bild ist länger als %1 Byte</translation>
    </message>
    <message>
        <source>the picture is no PNG file</source>
        <translation>das Bild ist keine PNG-Datei</translation>
    </message>
    <message>
        <source>this is no list of versions</source>
        <translation>das ist keine Liste von Versionen</translation>
    </message>
    <message>
        <source>it has a document type</source>
        <translation>sie hat einen Dokumenttyp</translation>
    </message>
    <message>
        <source>an element has too many attributes</source>
        <translation>ein Element hat zu viele Attribute</translation>
    </message>
    <message>
        <source>its elements are nested too deeply</source>
        <translation>ihre Elemente sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>its first element is not &quot;rss&quot;</source>
        <translation>ihr erstes Element ist nicht „rss“</translation>
    </message>
    <message>
        <source>it has too many versions</source>
        <translation>sie hat zu viele Versionen</translation>
    </message>
    <message>
        <source>the list is too long</source>
        <translation>die Liste ist zu lang</translation>
    </message>
    <message>
        <source>not an https address</source>
        <translation>keine https-Adresse</translation>
    </message>
    <message>
        <source>no whole answer in %1 s</source>
        <translation>keine vollständige Antwort in %1 s</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 von %2 Byte</translation>
    </message>
    <message>
        <source>redirected to %1</source>
        <translation>weitergeleitet nach %1</translation>
    </message>
    <message>
        <source>redirected more than %1 times</source>
        <translation>öfter als %1-mal weitergeleitet</translation>
    </message>
    <message>
        <source>the proxy in the environment is not understood</source>
        <translation>der Proxy in der Umgebung wird nicht verstanden</translation>
    </message>
    <message>
        <source>%1 did not end</source>
        <translation>%1 wurde nicht beendet</translation>
    </message>
    <message>
        <source>%1 ended with %2</source>
        <translation>%1 endete mit %2</translation>
    </message>
    <message>
        <source>it is not in UTF-8</source>
        <translation>sie ist nicht in UTF-8</translation>
    </message>
    <message>
        <source>not an icon family</source>
        <translation>keine Symbolfamilie</translation>
    </message>
    <message>
        <source>an icon family without a whole element</source>
        <translation>eine Symbolfamilie ohne vollständiges Element</translation>
    </message>
    <message>
        <source>the icon family holds no whole picture</source>
        <translation>die Symbolfamilie enthält kein vollständiges Bild</translation>
    </message>
    <message>
        <source>icon family with too many elements</source>
        <translation>Symbolfamilie mit zu vielen Elementen</translation>
    </message>
    <message>
        <source>icon family element too long</source>
        <translation>Element der Symbolfamilie zu lang</translation>
    </message>
    <message>
        <source>icon family too long</source>
        <translation>Symbolfamilie zu lang</translation>
    </message>
    <message>
        <source>the image has no picture to make an icon of</source>
        <translation>das Bild hat keine Darstellung, aus der ein Symbol gemacht werden kann</translation>
    </message>
    <message>
        <source>element &apos;%1&apos; holds neither PNG nor JPEG 2000</source>
        <translation>Element „%1“ enthält weder PNG noch JPEG 2000</translation>
    </message>
    <message>
        <source>element &apos;%1&apos; holds neither ARGB, PNG nor JPEG 2000</source>
        <translation>Element „%1“ enthält weder ARGB noch PNG noch JPEG 2000</translation>
    </message>
    <message>
        <source>element &apos;%1&apos; holds a picture of %2 x %3 pixels</source>
        <translation>Element „%1“ enthält ein Bild mit %2 × %3 Pixeln</translation>
    </message>
    <message>
        <source>element &apos;%1&apos; is too short</source>
        <translation>Element „%1“ ist zu kurz</translation>
    </message>
    <message>
        <source>element &apos;%1&apos; was given %2 bytes</source>
        <translation>Element „%1“ bekam %2 Byte</translation>
    </message>
    <message>
        <source>there is no element &apos;%1&apos;</source>
        <translation>es gibt kein Element „%1“</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not the type of a picture</source>
        <translation>„%1“ ist kein Typ eines Bildes</translation>
    </message>
    <message>
        <source>element pixels do not fill a bitmap</source>
        <translation>die Pixel des Elements füllen kein Bild</translation>
    </message>
    <message>
        <source>an element form is not handled</source>
        <translation>eine Form von Elementen wird nicht behandelt</translation>
    </message>
    <message>
        <source>packed colour with too many pixels</source>
        <translation>gepackte Farbe mit zu vielen Pixeln</translation>
    </message>
    <message>
        <source>packed colour does not unpack to its pixels</source>
        <translation>gepackte Farbe ergibt entpackt nicht ihre Pixel</translation>
    </message>
    <message>
        <source>packed picture with too many pixels</source>
        <translation>gepacktes Bild mit zu vielen Pixeln</translation>
    </message>
    <message>
        <source>packed picture does not unpack to its pixels</source>
        <translation>gepacktes Bild ergibt entpackt nicht seine Pixel</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>file is cut off</source>
        <translation>die Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>zu wenig Arbeitsspeicher</translation>
    </message>
    <message>
        <source>the file holds no picture</source>
        <translation>die Datei enthält kein Bild</translation>
    </message>
    <message>
        <source>not a picture that can be read</source>
        <translation>kein lesbares Bild</translation>
    </message>
    <message>
        <source>an icon family, not a picture</source>
        <translation>eine Symbolfamilie, kein Bild</translation>
    </message>
    <message>
        <source>animations in the format MNG are not read</source>
        <translation>Animationen im Format MNG werden nicht gelesen</translation>
    </message>
    <message>
        <source>compressed vector pictures are not read</source>
        <translation>komprimierte Vektorbilder werden nicht gelesen</translation>
    </message>
    <message>
        <source>vector picture defines entities</source>
        <translation>das Vektorbild definiert Entitäten</translation>
    </message>
    <message>
        <source>vector picture refers to other files</source>
        <translation>das Vektorbild verweist auf andere Dateien</translation>
    </message>
    <message>
        <source>vector picture has too many parts</source>
        <translation>das Vektorbild hat zu viele Teile</translation>
    </message>
    <message>
        <source>picture of %1 x %2 pixels</source>
        <translation>Bild mit %1 × %2 Pixeln</translation>
    </message>
    <message>
        <source>the picture cannot be decoded</source>
        <translation>das Bild kann nicht dekodiert werden</translation>
    </message>
    <message>
        <source>a picture without size</source>
        <translation>ein Bild ohne Größe</translation>
    </message>
    <message>
        <source>cannot be decoded</source>
        <translation>nicht dekodierbar</translation>
    </message>
    <message>
        <source>not a PNG file</source>
        <translation>keine PNG-Datei</translation>
    </message>
    <message>
        <source>PNG file is cut off</source>
        <translation>die PNG-Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>PNG header is cut off</source>
        <translation>der Kopf der PNG-Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>PNG file does not begin with a header</source>
        <translation>die PNG-Datei beginnt nicht mit einem Kopf</translation>
    </message>
    <message>
        <source>PNG header states an impossible size</source>
        <translation>der Kopf der PNG-Datei nennt eine unmögliche Größe</translation>
    </message>
    <message>
        <source>PNG header states an unknown kind of pixels</source>
        <translation>der Kopf der PNG-Datei nennt eine unbekannte Art von Pixeln</translation>
    </message>
    <message>
        <source>PNG file holds far more data than its pixels need</source>
        <translation>die PNG-Datei enthält weit mehr Daten, als ihre Pixel brauchen</translation>
    </message>
    <message>
        <source>PNG picture of %1 x %2 pixels</source>
        <translation>PNG-Bild mit %1 × %2 Pixeln</translation>
    </message>
    <message>
        <source>PNG picture is too large</source>
        <translation>das PNG-Bild ist zu groß</translation>
    </message>
    <message>
        <source>unexpected layout</source>
        <translation>unerwarteter Aufbau</translation>
    </message>
    <message>
        <source>no pixels to write as PNG</source>
        <translation>keine Pixel, die als PNG geschrieben werden können</translation>
    </message>
    <message>
        <source>compressing a PNG</source>
        <translation>beim Komprimieren eines PNG</translation>
    </message>
    <message>
        <source>PNG pixels do not fit their bound</source>
        <translation>PNG-Pixel überschreiten ihre Grenze</translation>
    </message>
    <message>
        <source>JPEG file is cut off</source>
        <translation>die JPEG-Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>JPEG file of more than %1 scans</source>
        <translation>JPEG-Datei mit mehr als %1 Durchläufen</translation>
    </message>
    <message>
        <source>JPEG picture is too large</source>
        <translation>das JPEG-Bild ist zu groß</translation>
    </message>
    <message>
        <source>not a TIFF picture of inks or with transparent greys</source>
        <translation>kein TIFF-Bild aus Druckfarben oder mit durchsichtigen Graustufen</translation>
    </message>
    <message>
        <source>TIFF picture is damaged or cut off</source>
        <translation>das TIFF-Bild ist beschädigt oder abgeschnitten</translation>
    </message>
    <message>
        <source>TIFF picture has no pixels</source>
        <translation>das TIFF-Bild hat keine Pixel</translation>
    </message>
    <message>
        <source>not a JPEG 2000 file</source>
        <translation>keine JPEG-2000-Datei</translation>
    </message>
    <message>
        <source>JPEG 2000 file is cut off</source>
        <translation>die JPEG-2000-Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>JPEG 2000 file has a box without room for its header</source>
        <translation>die JPEG-2000-Datei hat einen Block ohne Platz für seinen Kopf</translation>
    </message>
    <message>
        <source>JPEG 2000 file has no picture</source>
        <translation>die JPEG-2000-Datei hat kein Bild</translation>
    </message>
    <message>
        <source>JPEG 2000 codestream does not begin with its size</source>
        <translation>der JPEG-2000-Datenstrom beginnt nicht mit seiner Größe</translation>
    </message>
    <message>
        <source>JPEG 2000 codestream has an unknown marker</source>
        <translation>der JPEG-2000-Datenstrom hat eine unbekannte Marke</translation>
    </message>
    <message>
        <source>JPEG 2000 header does not say how it is coded</source>
        <translation>der JPEG-2000-Kopf sagt nicht, wie kodiert ist</translation>
    </message>
    <message>
        <source>JPEG 2000 header states an impossible size</source>
        <translation>der JPEG-2000-Kopf nennt eine unmögliche Größe</translation>
    </message>
    <message>
        <source>JPEG 2000 header states an impossible coding</source>
        <translation>der JPEG-2000-Kopf nennt eine unmögliche Kodierung</translation>
    </message>
    <message>
        <source>JPEG 2000 tile states an impossible length</source>
        <translation>eine JPEG-2000-Kachel nennt eine unmögliche Länge</translation>
    </message>
    <message>
        <source>JPEG 2000 picture has %1 components</source>
        <translation>das JPEG-2000-Bild hat %1 Komponenten</translation>
    </message>
    <message>
        <source>JPEG 2000 picture has too many components</source>
        <translation>das JPEG-2000-Bild hat zu viele Komponenten</translation>
    </message>
    <message>
        <source>JPEG 2000 picture has unusable components</source>
        <translation>das JPEG-2000-Bild hat unbrauchbare Komponenten</translation>
    </message>
    <message>
        <source>JPEG 2000 picture has components of unequal size</source>
        <translation>das JPEG-2000-Bild hat ungleich große Komponenten</translation>
    </message>
    <message>
        <source>JPEG 2000 picture has more than 16 bits a sample</source>
        <translation>das JPEG-2000-Bild hat mehr als 16 Bit je Wert</translation>
    </message>
    <message>
        <source>JPEG 2000 picture is in a colour space that is not read</source>
        <translation>das JPEG-2000-Bild hat einen Farbraum, der nicht gelesen wird</translation>
    </message>
    <message>
        <source>JPEG 2000 picture has no colour</source>
        <translation>das JPEG-2000-Bild hat keine Farbe</translation>
    </message>
    <message>
        <source>JPEG 2000 picture is too large</source>
        <translation>das JPEG-2000-Bild ist zu groß</translation>
    </message>
    <message>
        <source>JPEG 2000 picture of %1 x %2 pixels</source>
        <translation>JPEG-2000-Bild mit %1 × %2 Pixeln</translation>
    </message>
    <message>
        <source>JPEG 2000 picture of %1 x %2 pixels is of too many pixels</source>
        <translation>JPEG-2000-Bild mit %1 × %2 Pixeln hat zu viele Pixel</translation>
    </message>
    <message>
        <source>JPEG 2000 picture of %1 x %2 pixels is of too many tiles</source>
        <translation>JPEG-2000-Bild mit %1 × %2 Pixeln hat zu viele Kacheln</translation>
    </message>
    <message>
        <source>JPEG 2000 picture of %1 x %2 pixels is of too many code blocks</source>
        <translation>JPEG-2000-Bild mit %1 × %2 Pixeln hat zu viele Kodierblöcke</translation>
    </message>
    <message>
        <source>JPEG 2000 picture of %1 x %2 pixels is of too many packets</source>
        <translation>JPEG-2000-Bild mit %1 × %2 Pixeln hat zu viele Pakete</translation>
    </message>
    <message>
        <source>not a layered picture (PSD)</source>
        <translation>kein Bild mit Ebenen (PSD)</translation>
    </message>
    <message>
        <source>PSD file is cut off</source>
        <translation>die PSD-Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>PSD file has no palette</source>
        <translation>die PSD-Datei hat keine Palette</translation>
    </message>
    <message>
        <source>PSD picture has no pixels</source>
        <translation>das PSD-Bild hat keine Pixel</translation>
    </message>
    <message>
        <source>PSD pictures of separate inks are not read</source>
        <translation>PSD-Bilder aus einzelnen Druckfarben werden nicht gelesen</translation>
    </message>
    <message>
        <source>PSD picture is in a colour mode that is not read</source>
        <translation>das PSD-Bild hat einen Farbmodus, der nicht gelesen wird</translation>
    </message>
    <message>
        <source>PSD picture has %1 bits a sample in a mode without them</source>
        <translation>das PSD-Bild hat %1 Bit je Wert in einem Modus, in dem es sie nicht gibt</translation>
    </message>
    <message>
        <source>PSD picture has %1 channels</source>
        <translation>das PSD-Bild hat %1 Kanäle</translation>
    </message>
    <message>
        <source>PSD picture is compressed in a way that is not read</source>
        <translation>das PSD-Bild ist auf eine Weise komprimiert, die nicht gelesen wird</translation>
    </message>
    <message>
        <source>PSD picture has a row that is too short</source>
        <translation>das PSD-Bild hat eine zu kurze Zeile</translation>
    </message>
    <message>
        <source>PSD picture is too large</source>
        <translation>das PSD-Bild ist zu groß</translation>
    </message>
    <message>
        <source>Multi-disk zip archives not supported</source>
        <translation>geteilte Zip-Archive werden nicht unterstützt</translation>
    </message>
    <message>
        <source>invalid chunk type</source>
        <translation>ungültige Art eines Abschnitts</translation>
    </message>
    <message>
        <source>bad adaptive filter value</source>
        <translation>ungültiger Wert eines Filters</translation>
    </message>
    <message>
        <source>incorrect data check</source>
        <translation>falsche Prüfsumme der Daten</translation>
    </message>
    <message>
        <source>invalid distance too far back</source>
        <translation>ungültiger Abstand, zu weit zurück</translation>
    </message>
    <message>
        <source>Invalid JPEG file structure</source>
        <translation>ungültiger Aufbau der JPEG-Datei</translation>
    </message>
    <message>
        <source>missing SOS marker</source>
        <translation>die SOS-Marke fehlt</translation>
    </message>
    <message>
        <source>Bogus marker length</source>
        <translation>ungültige Länge einer Marke</translation>
    </message>
    <message>
        <source>Bogus Huffman table definition</source>
        <translation>ungültige Huffman-Tabelle</translation>
    </message>
    <message>
        <source>Unsupported marker type %1</source>
        <translation>nicht unterstützte Marke %1</translation>
    </message>
</context>
<context>
    <name>TintBar</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>Graphit</translation>
    </message>
</context>
<context>
    <name>quorvane</name>
    <message>
        <source>Original icon</source>
        <translation>Originalsymbol</translation>
    </message>
    <message>
        <source>Revert puts this icon back.</source>
        <translation>„Wiederherstellen“ setzt dieses Symbol wieder ein.</translation>
    </message>
    <message>
        <source>Original Icon</source>
        <translation>Originalsymbol</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Type the label here</source>
        <translation>Beschriftung hier eingeben</translation>
    </message>
    <message>
        <source>&amp;Label</source>
        <translation>Beschr&amp;iftung</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Schlagschatten</translation>
    </message>
    <message>
        <source>Soft shadow</source>
        <translation>Weicher Schatten</translation>
    </message>
    <message>
        <source>Medium shadow</source>
        <translation>Mittlerer Schatten</translation>
    </message>
    <message>
        <source>Sharp shadow</source>
        <translation>Scharfer Schatten</translation>
    </message>
    <message>
        <source>Glow</source>
        <translation>Leuchten</translation>
    </message>
    <message>
        <source>Red glow</source>
        <translation>Rotes Leuchten</translation>
    </message>
    <message>
        <source>Green glow</source>
        <translation>Grünes Leuchten</translation>
    </message>
    <message>
        <source>Blue glow</source>
        <translation>Blaues Leuchten</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Fon&amp;t</source>
        <translation>Schrifta&amp;rt</translation>
    </message>
    <message>
        <source>C&amp;olour</source>
        <translation>Farb&amp;e</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>Line Spacin&amp;g</source>
        <translation>&amp;Zeilenabstand</translation>
    </message>
    <message>
        <source>Effe&amp;ct</source>
        <translation>Effek&amp;t</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>Transformation</translation>
    </message>
    <message>
        <source>&amp;Shear</source>
        <translation>&amp;Neigung</translation>
    </message>
    <message>
        <source>&amp;Rotation</source>
        <translation>Dreh&amp;ung</translation>
    </message>
    <message>
        <source>O&amp;pacity</source>
        <translation>Dec&amp;kkraft</translation>
    </message>
    <message>
        <source>Reset Transfor&amp;m</source>
        <translation>Transfor&amp;mation zurücksetzen</translation>
    </message>
    <message>
        <source>Path of the folder</source>
        <translation>Pfad des Ordners</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Put the icon from before the first Apply back</source>
        <translation>Das Symbol von vor dem ersten Anwenden wieder einsetzen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Give the folder this icon</source>
        <translation>Dem Ordner dieses Symbol geben</translation>
    </message>
    <message>
        <source>Ope&amp;n…</source>
        <translation>&amp;Öffnen…</translation>
    </message>
    <message>
        <source>Choose the folder to give an icon to</source>
        <translation>Den Ordner wählen, der ein Symbol bekommen soll</translation>
    </message>
    <message>
        <source>What the label looks like when Quorvane starts.</source>
        <translation>So sieht die Beschriftung aus, wenn Quorvane startet.</translation>
    </message>
    <message>
        <source>Default colour</source>
        <translation>Standardfarbe</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Always this &amp;colour</source>
        <translation>Immer &amp;diese Farbe</translation>
    </message>
    <message>
        <source>The colour used &amp;last</source>
        <translation>Die &amp;zuletzt verwendete Farbe</translation>
    </message>
    <message>
        <source>C&amp;hange…</source>
        <translation>Ä&amp;ndern…</translation>
    </message>
    <message>
        <source>Change the default font</source>
        <translation>Die Standardschriftart ändern</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Always this &amp;font</source>
        <translation>Immer diese &amp;Schriftart</translation>
    </message>
    <message>
        <source>The font used la&amp;st</source>
        <translation>Die zuletzt &amp;verwendete Schriftart</translation>
    </message>
    <message>
        <source>New Versions</source>
        <translation>Neue Versionen</translation>
    </message>
    <message>
        <source>Look for one when Quorvane s&amp;tarts</source>
        <translation>Beim S&amp;tart von Quorvane danach suchen</translation>
    </message>
    <message>
        <source>Look &amp;Now</source>
        <translation>&amp;Jetzt suchen</translation>
    </message>
    <message>
        <source>Keep these preferences and look for a new version</source>
        <translation>Diese Einstellungen übernehmen und nach einer neuen Version suchen</translation>
    </message>
    <message>
        <source>Quorvane uses the network for this only, and installs nothing by itself.</source>
        <translation>Quorvane nutzt das Netz nur dafür und installiert nichts von selbst.</translation>
    </message>
    <message>
        <source>Questions</source>
        <translation>Rückfragen</translation>
    </message>
    <message>
        <source>Ask me now and then to tell &amp;others about Quorvane</source>
        <translation>Mich gelegentlich bitten, &amp;anderen von Quorvane zu erzählen</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Default Colour</source>
        <translation>Standardfarbe</translation>
    </message>
    <message>
        <source>Default Font</source>
        <translation>Standardschriftart</translation>
    </message>
    <message>
        <source>Add Icon</source>
        <translation>Symbol hinzufügen</translation>
    </message>
    <message>
        <source>Import Set</source>
        <translation>Sammlung importieren</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Exported sets (*.zip)</source>
        <translation>Exportierte Sammlungen (*.zip)</translation>
    </message>
    <message>
        <source>Export Set</source>
        <translation>Sammlung exportieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Replace “%1”?</source>
        <translation>„%1“ ersetzen?</translation>
    </message>
    <message>
        <source>There is a file of that name already.</source>
        <translation>Es gibt bereits eine Datei dieses Namens.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
</context>
<context>
    <name>quorvane::AboutController</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Gives folders icons of their own, with a label.</source>
        <translation>Gibt Ordnern eigene Symbole mit einer Beschriftung.</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliotheken</translation>
    </message>
    <message>
        <source>About Quorvane</source>
        <translation>Über Quorvane</translation>
    </message>
    <message>
        <source>&amp;Home Page</source>
        <translation>&amp;Webseite</translation>
    </message>
    <message>
        <source>C&amp;omments</source>
        <translation>&amp;Kommentare</translation>
    </message>
    <message>
        <source>&amp;Write to Us</source>
        <translation>&amp;Schreiben Sie uns</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>You may use, study, change and pass on Quorvane under the GNU General Public License, version 3 or any later version. It comes without any warranty. Its own pictures are in the public domain (CC0 1.0).</source>
        <translation>Sie dürfen Quorvane unter der GNU General Public License, Version 3 oder jeder späteren Version, verwenden, untersuchen, verändern und weitergeben. Es wird ohne jede Gewährleistung geliefert. Die eigenen Bilder sind gemeinfrei (CC0 1.0).</translation>
    </message>
    <message>
        <source>&amp;Licence Text…</source>
        <translation>&amp;Lizenztext…</translation>
    </message>
    <message>
        <source>Built on</source>
        <translation>Aufgebaut auf</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Text of the licence</source>
        <translation>Text der Lizenz</translation>
    </message>
    <message>
        <source>The program&apos;s icon</source>
        <translation>Das Symbol des Programms</translation>
    </message>
</context>
<context>
    <name>quorvane::AlertPanel</name>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>quorvane::AppController</name>
    <message>
        <source>%@ %.0f</source>
        <translation>%@ %.0f</translation>
    </message>
    <message>
        <source>Reading the picture…</source>
        <translation>Das Bild wird gelesen…</translation>
    </message>
    <message>
        <source>“%1” cannot be used: %2</source>
        <translation>„%1“ kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>Looking at the folder…</source>
        <translation>Der Ordner wird untersucht…</translation>
    </message>
    <message>
        <source>“%1” is no folder.</source>
        <translation>„%1“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>“%1” is not there.</source>
        <translation>„%1“ ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: only folders on this computer can.</source>
        <translation>„%1“ kann nicht geöffnet werden: Das geht nur mit Ordnern auf diesem Computer.</translation>
    </message>
    <message>
        <source>– %1</source>
        <translation>– %1</translation>
    </message>
    <message>
        <source>The folder cannot be looked at: %1</source>
        <translation>Der Ordner kann nicht untersucht werden: %1</translation>
    </message>
    <message>
        <source>Applying the icon…</source>
        <translation>Das Symbol wird angewendet…</translation>
    </message>
    <message>
        <source>Unable to Set Icon</source>
        <translation>Symbol kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>The folder appears to be locked and cannot be modified.  Please unlock the folder and try again.

Use the Finder&apos;s Get Info on the folder and uncheck the &apos;Locked&apos; checkbox.</source>
        <translation>Der Ordner scheint geschützt zu sein und kann nicht geändert werden. Bitte heben Sie den Schutz auf und versuchen Sie es erneut.

Öffnen Sie dazu im Finder die Informationen zum Ordner und entfernen Sie das Häkchen bei „Geschützt“.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Putting the former icon back…</source>
        <translation>Das frühere Symbol wird wiederhergestellt…</translation>
    </message>
    <message>
        <source>First thing first</source>
        <translation>Das Wichtigste zuerst</translation>
    </message>
    <message>
        <source>Please drop the folder you wish to &quot;brand&quot; in the folder well.  You can also choose a folder by selecting Open in the File menu.</source>
        <translation>Bitte legen Sie den Ordner, den Sie gestalten möchten, im Ordnerfeld ab. Sie können einen Ordner auch mit „Öffnen“ im Menü „Datei“ wählen.</translation>
    </message>
    <message>
        <source>Important Dock Tip</source>
        <translation>Wichtiger Hinweis zum Dock</translation>
    </message>
    <message>
        <source>Congratulations!  You&apos;ve just branded your first folder.

On Mac OS X 10.5 and later, a folder is shown in the Dock as a Stack by default.  In order to see the folder icon you&apos;ve just made, ctrl-click on it in the Dock to get the contextual menu.  Then select Folder under the &apos;Display as&apos; option.</source>
        <translation>Herzlichen Glückwunsch! Sie haben soeben Ihren ersten Ordner gestaltet.

Ab Mac OS X 10.5 wird ein Ordner im Dock normalerweise als Stapel angezeigt. Um das neue Ordnersymbol zu sehen, klicken Sie ihn im Dock bei gedrückter ctrl-Taste an. Wählen Sie dann im Kontextmenü unter „Anzeigen als“ den Eintrag „Ordner“.</translation>
    </message>
    <message>
        <source>More Information</source>
        <translation>Weitere Informationen</translation>
    </message>
    <message>
        <source>Maybe next time</source>
        <translation>Vielleicht beim nächsten Mal</translation>
    </message>
    <message>
        <source>Don&apos;t ask again</source>
        <translation>Nicht mehr fragen</translation>
    </message>
    <message>
        <source>Share on Facebook</source>
        <translation>Auf Facebook teilen</translation>
    </message>
    <message>
        <source>As an independent developer, our single greatest challenge is getting the word out.  Please consider taking a minute to share %@ on your Facebook and help spread the word.

Thank you!</source>
        <translation>Für uns als unabhängige Entwickler ist es am schwierigsten, bekannt zu werden. Bitte nehmen Sie sich eine Minute Zeit, um %@ auf Facebook zu teilen und es so bekannter zu machen.

Vielen Dank!</translation>
    </message>
    <message>
        <source>We Need Your Help!</source>
        <translation>Wir brauchen Ihre Hilfe!</translation>
    </message>
    <message>
        <source>As an indie developer, our biggest challenge is getting the word out.  Please take a minute to rate %@ on the App Store and help spread the word.

Thank you!</source>
        <translation>Für uns als unabhängige Entwickler ist es am schwierigsten, bekannt zu werden. Bitte nehmen Sie sich eine Minute Zeit, um %@ im App Store zu bewerten und es so bekannter zu machen.

Vielen Dank!</translation>
    </message>
    <message>
        <source>Rate %@</source>
        <translation>%@ bewerten</translation>
    </message>
    <message>
        <source>No Saved Looks</source>
        <translation>Keine gespeicherten Vorlagen</translation>
    </message>
    <message>
        <source>The look cannot be saved: %1</source>
        <translation>Die Vorlage kann nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The look “%1” was saved.</source>
        <translation>Die Vorlage „%1“ wurde gespeichert.</translation>
    </message>
    <message>
        <source>The look cannot be used: %1</source>
        <translation>Die Vorlage kann nicht verwendet werden: %1</translation>
    </message>
    <message>
        <source>The clipboard holds no path of a folder.</source>
        <translation>Die Zwischenablage enthält keinen Pfad eines Ordners.</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>The folder is not there any more.</source>
        <translation>Der Ordner ist nicht mehr da.</translation>
    </message>
    <message>
        <source>No Recent Folders</source>
        <translation>Keine zuletzt geöffneten Ordner</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Open a folder: the label is drawn on this picture then.</source>
        <translation>Öffnen Sie einen Ordner: Die Beschriftung wird dann auf dieses Bild gezeichnet.</translation>
    </message>
    <message>
        <source>No program was found that opens web pages.</source>
        <translation>Es wurde kein Programm gefunden, das Webseiten öffnet.</translation>
    </message>
    <message>
        <source>No program was found that writes mail.</source>
        <translation>Es wurde kein E-Mail-Programm gefunden.</translation>
    </message>
    <message>
        <source>The settings cannot be kept: %1</source>
        <translation>Die Einstellungen können nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>“%1” Is Missing</source>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>The folder is not there any more, or the disk that it lies on is away:

%1</source>
        <translation>Den Ordner gibt es nicht mehr, oder der Datenträger, auf dem er liegt, ist nicht da:

%1</translation>
    </message>
    <message>
        <source>Keep in List</source>
        <translation>In der Liste behalten</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
</context>
<context>
    <name>quorvane::AppcastUpdater</name>
    <message>
        <source>Could Not Look for a New Version</source>
        <translation>Suche nach neuer Version nicht möglich</translation>
    </message>
    <message>
        <source>What the server sent is no list of versions.</source>
        <translation>Der Server hat etwas anderes als eine Liste von Versionen gesendet.</translation>
    </message>
    <message>
        <source>The address at which new versions are announced is not a safe one. It has to begin with https.</source>
        <translation>Die Adresse, unter der neue Versionen angekündigt werden, ist nicht sicher. Sie muss mit https beginnen.</translation>
    </message>
    <message>
        <source>The server cannot be reached. See whether this computer is connected to the Internet.</source>
        <translation>Der Server ist nicht erreichbar. Prüfen Sie, ob dieser Computer mit dem Internet verbunden ist.</translation>
    </message>
    <message>
        <source>There is no safe connection to the server: it may be another one that answers in its place. A wrong date on this computer can be the cause, too.</source>
        <translation>Zum Server besteht keine sichere Verbindung: Vielleicht antwortet ein anderer an seiner Stelle. Auch ein falsches Datum auf diesem Computer kann die Ursache sein.</translation>
    </message>
    <message>
        <source>The server has no list of versions at this address.</source>
        <translation>Der Server hat unter dieser Adresse keine Liste von Versionen.</translation>
    </message>
    <message>
        <source>The server cannot answer at present. Try again later.</source>
        <translation>Der Server kann zurzeit nicht antworten. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The server takes too long to answer. Try again later.</source>
        <translation>Der Server braucht zu lange für eine Antwort. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>What the server sent is too long for a list of versions.</source>
        <translation>Was der Server gesendet hat, ist zu lang für eine Liste von Versionen.</translation>
    </message>
    <message>
        <source>The server sends us on to an address that is not safe, or on and on.</source>
        <translation>Der Server leitet an eine unsichere Adresse weiter oder immer wieder weiter.</translation>
    </message>
    <message>
        <source>A part of the program that is needed for it is missing or does not work.</source>
        <translation>Ein dafür nötiger Teil des Programms fehlt oder arbeitet nicht.</translation>
    </message>
    <message>
        <source>The list of versions names none that can be compared with this one.</source>
        <translation>Die Liste nennt keine Version, die mit dieser verglichen werden kann.</translation>
    </message>
    <message>
        <source>You Have the Newest Version</source>
        <translation>Sie haben die neueste Version</translation>
    </message>
    <message>
        <source>Quorvane %1 is the newest version there is.</source>
        <translation>Quorvane %1 ist die neueste Version.</translation>
    </message>
    <message>
        <source>Could Not Open the Page</source>
        <translation>Seite konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>No program was found that opens web pages.</source>
        <translation>Es wurde kein Programm gefunden, das Webseiten öffnet.</translation>
    </message>
</context>
<context>
    <name>quorvane::BaseColumn</name>
    <message>
        <source>Choose Pict&amp;ure…</source>
        <translation>Bi&amp;ld wählen…</translation>
    </message>
    <message>
        <source>Base Picture</source>
        <translation>Basisbild</translation>
    </message>
    <message>
        <source>Base picture</source>
        <translation>Basisbild</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>Gewähltes Bild</translation>
    </message>
    <message>
        <source>The folder’s own icon</source>
        <translation>Eigenes Symbol des Ordners</translation>
    </message>
    <message>
        <source>The label is drawn on this picture.</source>
        <translation>Die Beschriftung wird auf dieses Bild gezeichnet.</translation>
    </message>
    <message>
        <source>The label is drawn on it. To draw on something else, choose a picture or drop one here.</source>
        <translation>Die Beschriftung wird darauf gezeichnet. Für einen anderen Untergrund wählen Sie ein Bild oder legen eines hier ab.</translation>
    </message>
    <message>
        <source>Any picture file, also one that is in no set</source>
        <translation>Jede Bilddatei, auch eine aus keiner Sammlung</translation>
    </message>
    <message>
        <source>Use Folder’s Icon</source>
        <translation>Ordnersymbol verwenden</translation>
    </message>
</context>
<context>
    <name>quorvane::BaseIconController</name>
    <message>
        <source>Remove Selected Icon</source>
        <translation>Ausgewähltes Symbol entfernen</translation>
    </message>
    <message>
        <source>Remove Selected Icons</source>
        <translation>Ausgewählte Symbole entfernen</translation>
    </message>
    <message>
        <source>Not all of it could be taken back: %1</source>
        <translation>Nicht alles konnte rückgängig gemacht werden: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo Remove Icons</source>
        <translation>Rückgängig: Symbole entfernen</translation>
    </message>
    <message>
        <source>Undo Add Icons</source>
        <translation>Rückgängig: Symbole hinzufügen</translation>
    </message>
    <message>
        <source>Undo Move Icons</source>
        <translation>Rückgängig: Symbole verschieben</translation>
    </message>
    <message>
        <source>Undo Reorder Icons</source>
        <translation>Rückgängig: Symbole umordnen</translation>
    </message>
    <message>
        <source>Undo Rename Set</source>
        <translation>Rückgängig: Sammlung umbenennen</translation>
    </message>
    <message>
        <source>Undo Remove Set</source>
        <translation>Rückgängig: Sammlung entfernen</translation>
    </message>
    <message>
        <source>Undo New Set</source>
        <translation>Rückgängig: Neue Sammlung</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>The built-in icons stay as they are. Add pictures to a set of My Icons.</source>
        <translation>Die mitgelieferten Symbole bleiben, wie sie sind. Fügen Sie Bilder zu einer Sammlung unter „Meine Symbole“ hinzu.</translation>
    </message>
    <message>
        <source>Select one set to add icons to.</source>
        <translation>Wählen Sie die Sammlung aus, zu der Symbole hinzugefügt werden sollen.</translation>
    </message>
</context>
<context>
    <name>quorvane::BusyIndicator</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>quorvane::ColorPanel</name>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
</context>
<context>
    <name>quorvane::ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>quorvane::FolderView</name>
    <message>
        <source>Drag a folder from the Finder and drop it here.</source>
        <translation>Ziehen Sie einen Ordner aus dem Finder und legen Sie ihn hier ab.</translation>
    </message>
    <message>
        <source>Hold down mouse button and drag to reposition text.</source>
        <translation>Halten Sie die Maustaste gedrückt und ziehen Sie, um den Text zu verschieben.</translation>
    </message>
    <message>
        <source>no label</source>
        <translation>keine Beschriftung</translation>
    </message>
    <message>
        <source>label “%label”, %x from the left and %y from the bottom of %side</source>
        <translation>Beschriftung „%label“, %x von links und %y von unten, von %side</translation>
    </message>
    <message>
        <source>Folder icon, no folder</source>
        <translation>Ordnersymbol, kein Ordner</translation>
    </message>
    <message>
        <source>Icon of %1</source>
        <translation>Symbol von %1</translation>
    </message>
    <message>
        <source>Drop a folder here</source>
        <translation>Ordner hier ablegen</translation>
    </message>
    <message>
        <source>This folder can only be moved from where it is, not opened.</source>
        <translation>Dieser Ordner kann von dort nur verschoben, nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>, overlay “%what” selected, %x from the left and %y from the bottom</source>
        <translation>, Abzeichen „%what“ ausgewählt, %x von links und %y von unten</translation>
    </message>
    <message>
        <source>, overlay “%what”, %x from the left and %y from the bottom</source>
        <translation>, Abzeichen „%what“, %x von links und %y von unten</translation>
    </message>
</context>
<context>
    <name>quorvane::FontPanel</name>
    <message>
        <source>Fonts</source>
        <translation>Schriftarten</translation>
    </message>
</context>
<context>
    <name>quorvane::HVWindow</name>
    <message>
        <source>Okay</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>quorvane::IconAdder</name>
    <message>
        <source>“%1” cannot be added: %2</source>
        <translation>„%1“ kann nicht hinzugefügt werden: %2</translation>
    </message>
    <message>
        <source>Adding an icon…</source>
        <translation>Ein Symbol wird hinzugefügt…</translation>
    </message>
    <message numerus="yes">
        <source>Adding %n icons…</source>
        <translation>
            <numerusform>%n Symbol wird hinzugefügt…</numerusform>
            <numerusform>%n Symbole werden hinzugefügt…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files cannot be added.</source>
        <translation>
            <numerusform>%n Datei kann nicht hinzugefügt werden.</numerusform>
            <numerusform>%n Dateien können nicht hinzugefügt werden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quorvane::IconArrayController</name>
    <message>
        <source>The order of the icons cannot be kept: %1</source>
        <translation>Die Reihenfolge der Symbole kann nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected icon?</source>
        <translation>Möchten Sie das ausgewählte Symbol wirklich löschen?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the %d selected icons?</source>
        <translation>Möchten Sie die %d ausgewählten Symbole wirklich löschen?</translation>
    </message>
    <message>
        <source>You cannot undo this action.</source>
        <translation>Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>quorvane::IconPreview</name>
    <message>
        <source>Preview of the chosen file</source>
        <translation>Vorschau der gewählten Datei</translation>
    </message>
    <message>
        <source>Choose a picture, an icon file or a folder.</source>
        <translation>Wählen Sie ein Bild, eine Symboldatei oder einen Ordner.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>No picture can be had of it.</source>
        <translation>Daraus lässt sich kein Bild gewinnen.</translation>
    </message>
    <message>
        <source>The icon that the desktop shows for it.</source>
        <translation>Das Symbol, das der Desktop dafür anzeigt.</translation>
    </message>
    <message>
        <source>Holds these sizes in pixels: %1</source>
        <translation>Enthält diese Größen in Pixel: %1</translation>
    </message>
</context>
<context>
    <name>quorvane::IconSetArrayController</name>
    <message>
        <source>No set can be made in the library’s folder.</source>
        <translation>Im Ordner der Bibliothek kann keine Sammlung angelegt werden.</translation>
    </message>
    <message>
        <source>The set cannot be called “%1”: %2</source>
        <translation>Die Sammlung kann nicht „%1“ heißen: %2</translation>
    </message>
    <message>
        <source>Icon Set &apos;%@&apos; Not Empty</source>
        <translation>Symbolsammlung „%@“ ist nicht leer</translation>
    </message>
    <message>
        <source>Please move icons to another set (or delete them) before removing this icon set.</source>
        <translation>Bitte verschieben Sie die Symbole in eine andere Sammlung (oder löschen Sie sie), bevor Sie diese Sammlung entfernen.</translation>
    </message>
    <message>
        <source>“%1” cannot be removed: %2</source>
        <translation>„%1“ kann nicht entfernt werden: %2</translation>
    </message>
    <message>
        <source>Making a set of “%1”…</source>
        <translation>Aus „%1“ wird eine Sammlung…</translation>
    </message>
    <message>
        <source>No set can be made of “%1”: %2</source>
        <translation>Aus „%1“ kann keine Sammlung gemacht werden: %2</translation>
    </message>
    <message>
        <source>Exporting “%1”…</source>
        <translation>„%1“ wird exportiert…</translation>
    </message>
    <message>
        <source>“%1” cannot be exported: %2</source>
        <translation>„%1“ kann nicht exportiert werden: %2</translation>
    </message>
    <message>
        <source>“%1” cannot be moved: %2</source>
        <translation>„%1“ kann nicht verschoben werden: %2</translation>
    </message>
    <message>
        <source>Only folders of pictures and exported sets can be dropped on the list of sets.</source>
        <translation>Auf der Liste der Sammlungen können nur Ordner mit Bildern und exportierte Sammlungen abgelegt werden.</translation>
    </message>
</context>
<context>
    <name>quorvane::LibraryFinds</name>
    <message>
        <source>%1, built-in, in %2</source>
        <translation>%1, mitgeliefert, in %2</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1, in %2</translation>
    </message>
</context>
<context>
    <name>quorvane::LibraryPage</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>quorvane::LibrarySearch</name>
    <message>
        <source>Icons found</source>
        <translation>Gefundene Symbole</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>No icon and no set is called “%1”.</source>
        <translation>Kein Symbol und keine Sammlung heißt „%1“.</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Suche leeren</translation>
    </message>
</context>
<context>
    <name>quorvane::LibraryView</name>
    <message>
        <source>&amp;Built-in</source>
        <translation>Mitgelie&amp;fert</translation>
    </message>
    <message>
        <source>My &amp;Icons</source>
        <translation>Meine S&amp;ymbole</translation>
    </message>
    <message>
        <source>The icons that come with the program</source>
        <translation>Die Symbole, die mit dem Programm kommen</translation>
    </message>
    <message>
        <source>Sets of your own</source>
        <translation>Ihre eigenen Sammlungen</translation>
    </message>
    <message>
        <source>Search Icons</source>
        <translation>Symbole suchen</translation>
    </message>
    <message>
        <source>Search icons</source>
        <translation>Symbole suchen</translation>
    </message>
    <message>
        <source>Finds icons of both libraries by their name or their set’s</source>
        <translation>Findet Symbole beider Bibliotheken nach ihrem Namen oder dem ihrer Sammlung</translation>
    </message>
    <message>
        <source>Size of the icons</source>
        <translation>Größe der Symbole</translation>
    </message>
    <message>
        <source>Built-in sets</source>
        <translation>Mitgelieferte Sammlungen</translation>
    </message>
    <message>
        <source>Built-in Icons</source>
        <translation>Mitgelieferte Symbole</translation>
    </message>
    <message>
        <source>My sets</source>
        <translation>Meine Sammlungen</translation>
    </message>
    <message>
        <source>My Icons</source>
        <translation>Meine Symbole</translation>
    </message>
    <message>
        <source>New Set</source>
        <translation>Neue Sammlung</translation>
    </message>
    <message>
        <source>Remove Set</source>
        <translation>Sammlung entfernen</translation>
    </message>
    <message>
        <source>Add Icon…</source>
        <translation>Symbol hinzufügen…</translation>
    </message>
    <message>
        <source>Remove Selected Icons</source>
        <translation>Ausgewählte Symbole entfernen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop; what is done stays</source>
        <translation>Anhalten; Erledigtes bleibt</translation>
    </message>
    <message>
        <source>&amp;New Set</source>
        <translation>&amp;Neue Sammlung</translation>
    </message>
    <message>
        <source>Rena&amp;me Set</source>
        <translation>Sammlung &amp;umbenennen</translation>
    </message>
    <message>
        <source>&amp;Remove Set</source>
        <translation>Sammlung &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Import Set…</source>
        <translation>Sammlung &amp;importieren…</translation>
    </message>
    <message>
        <source>&amp;Export Set…</source>
        <translation>Sammlung e&amp;xportieren…</translation>
    </message>
    <message>
        <source>&amp;Add Icon…</source>
        <translation>Symbol &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>Remove Selected Icon</source>
        <translation>Ausgewähltes Symbol entfernen</translation>
    </message>
    <message>
        <source>&amp;Find Icon</source>
        <translation>Symbol &amp;suchen</translation>
    </message>
    <message>
        <source>No built-in icons</source>
        <translation>Keine mitgelieferten Symbole</translation>
    </message>
    <message>
        <source>They are not installed. Sets of your own can be made under My Icons.</source>
        <translation>Sie sind nicht installiert. Eigene Sammlungen können Sie unter „Meine Symbole“ anlegen.</translation>
    </message>
    <message>
        <source>Show My Icons</source>
        <translation>Meine Symbole zeigen</translation>
    </message>
    <message numerus="yes">
        <source>%n sets are selected</source>
        <translation>
            <numerusform>%n Sammlung ist ausgewählt</numerusform>
            <numerusform>%n Sammlungen sind ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Select one to see its icons.</source>
        <translation>Wählen Sie eine aus, um ihre Symbole zu sehen.</translation>
    </message>
    <message>
        <source>No sets</source>
        <translation>Keine Sammlungen</translation>
    </message>
    <message>
        <source>The folder of your icons cannot be written.</source>
        <translation>In den Ordner Ihrer Symbole kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>No icons in this set</source>
        <translation>Keine Symbole in dieser Sammlung</translation>
    </message>
    <message>
        <source>Drop pictures, icon files or folders here.</source>
        <translation>Legen Sie hier Bilder, Symboldateien oder Ordner ab.</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen…</translation>
    </message>
</context>
<context>
    <name>quorvane::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open Re&amp;cent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Show in File &amp;Manager</source>
        <translation>Im &amp;Dateimanager zeigen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>C&amp;lose Folder</source>
        <translation>Ordner &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>A&amp;lles auswählen</translation>
    </message>
    <message>
        <source>Paste &amp;Folder Path</source>
        <translation>&amp;Ordnerpfad einfügen</translation>
    </message>
    <message>
        <source>C&amp;entre Label</source>
        <translation>Beschriftung &amp;zentrieren</translation>
    </message>
    <message>
        <source>Prefere&amp;nces…</source>
        <translation>E&amp;instellungen…</translation>
    </message>
    <message>
        <source>St&amp;yle</source>
        <translation>&amp;Stil</translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation>&amp;Schriftart</translation>
    </message>
    <message>
        <source>&amp;Colour…</source>
        <translation>&amp;Farbe…</translation>
    </message>
    <message>
        <source>&amp;Reset Transform</source>
        <translation>&amp;Transformation zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Looks</source>
        <translation>&amp;Vorlagen</translation>
    </message>
    <message>
        <source>Vie&amp;w</source>
        <translation>Ansi&amp;cht</translation>
    </message>
    <message>
        <source>Canvas &amp;1×</source>
        <translation>Arbeitsfläche &amp;1×</translation>
    </message>
    <message>
        <source>Canvas &amp;2×</source>
        <translation>Arbeitsfläche &amp;2×</translation>
    </message>
    <message>
        <source>Canvas &amp;3×</source>
        <translation>Arbeitsfläche &amp;3×</translation>
    </message>
    <message>
        <source>&amp;Original Icon</source>
        <translation>&amp;Originalsymbol</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Quorvane &amp;Help</source>
        <translation>Quorvane-&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>Frequently Asked &amp;Questions</source>
        <translation>Häufige &amp;Fragen</translation>
    </message>
    <message>
        <source>&amp;Forum</source>
        <translation>F&amp;orum</translation>
    </message>
    <message>
        <source>&amp;Blog</source>
        <translation>B&amp;log</translation>
    </message>
    <message>
        <source>Home &amp;Page</source>
        <translation>&amp;Webseite</translation>
    </message>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>Nach &amp;Aktualisierungen suchen…</translation>
    </message>
    <message>
        <source>&amp;About Quorvane</source>
        <translation>Ü&amp;ber Quorvane</translation>
    </message>
    <message>
        <source>&amp;Save Look…</source>
        <translation>Vorlage &amp;speichern…</translation>
    </message>
    <message>
        <source>&amp;Manage Looks…</source>
        <translation>Vorlagen &amp;verwalten…</translation>
    </message>
    <message>
        <source>Icon Li&amp;brary</source>
        <translation>Symbolbibli&amp;othek</translation>
    </message>
    <message>
        <source>&amp;Find Icon</source>
        <translation>Symbol &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Add Icon…</source>
        <translation>Symbol &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>Remove Selected Icon</source>
        <translation>Ausgewähltes Symbol entfernen</translation>
    </message>
    <message>
        <source>&amp;New Set</source>
        <translation>&amp;Neue Sammlung</translation>
    </message>
    <message>
        <source>Rena&amp;me Set</source>
        <translation>Sammlung &amp;umbenennen</translation>
    </message>
    <message>
        <source>&amp;Remove Set</source>
        <translation>Sammlung &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Import Set…</source>
        <translation>Sammlung &amp;importieren…</translation>
    </message>
    <message>
        <source>&amp;Export Set…</source>
        <translation>Sammlung e&amp;xportieren…</translation>
    </message>
</context>
<context>
    <name>quorvane::ManageLooksSheet</name>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Put Back</source>
        <translation>&amp;Zurückholen</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Saved looks</source>
        <translation>Gespeicherte Vorlagen</translation>
    </message>
    <message>
        <source>No looks have been saved yet. Save Look keeps the present one.</source>
        <translation>Es wurden noch keine Vorlagen gespeichert. „Vorlage speichern“ bewahrt die jetzige auf.</translation>
    </message>
    <message>
        <source>“%1” was removed.</source>
        <translation>„%1“ wurde entfernt.</translation>
    </message>
</context>
<context>
    <name>quorvane::NoticeLabel</name>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>quorvane::OverlayGroup</name>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Abzeichen</translation>
    </message>
    <message>
        <source>Remove Overlay</source>
        <translation>Abzeichen entfernen</translation>
    </message>
    <message>
        <source>Overlay Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Overlay Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>A shade of the picture’s own colour</source>
        <translation>Eine Abstufung der Farbe des Bildes</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Overlay colour</source>
        <translation>Farbe des Abzeichens</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
</context>
<context>
    <name>quorvane::OverlayPopup</name>
    <message>
        <source>Choose an overlay</source>
        <translation>Abzeichen wählen</translation>
    </message>
    <message>
        <source>Search emblems</source>
        <translation>Embleme suchen</translation>
    </message>
    <message>
        <source>Emblems</source>
        <translation>Embleme</translation>
    </message>
    <message>
        <source>Emoji or letter</source>
        <translation>Emoji oder Buchstabe</translation>
    </message>
    <message>
        <source>Picture File…</source>
        <translation>Bilddatei…</translation>
    </message>
</context>
<context>
    <name>quorvane::PreferenceController</name>
    <message>
        <source>%@ %.0f</source>
        <translation>%@ %.0f</translation>
    </message>
</context>
<context>
    <name>quorvane::PreviewStrip</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>The label is too small to be read at 48 pixels and hardly stands out from the picture.</source>
        <translation>Die Beschriftung ist bei 48 Pixel zu klein zum Lesen und hebt sich kaum vom Bild ab.</translation>
    </message>
    <message>
        <source>The label is too small to be read at 48 pixels.</source>
        <translation>Die Beschriftung ist bei 48 Pixel zu klein zum Lesen.</translation>
    </message>
    <message>
        <source>The label hardly stands out from the picture.</source>
        <translation>Die Beschriftung hebt sich kaum vom Bild ab.</translation>
    </message>
    <message>
        <source>%1 × %1 pixels</source>
        <translation>%1 × %1 Pixel</translation>
    </message>
</context>
<context>
    <name>quorvane::SaveLookSheet</name>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save Look</source>
        <translation>Vorlage speichern</translation>
    </message>
    <message>
        <source>&amp;Name of the look</source>
        <translation>&amp;Name der Vorlage</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Name of the look</source>
        <translation>Name der Vorlage</translation>
    </message>
    <message>
        <source>Font, colour, effect, spacing, transform and place of the label are kept, and the chosen picture, tint and overlay.</source>
        <translation>Gespeichert werden Schriftart, Farbe, Effekt, Abstand, Transformation und Lage der Beschriftung sowie das gewählte Bild, Tönung und Abzeichen.</translation>
    </message>
    <message>
        <source>This cannot be a name: %1</source>
        <translation>Das kann kein Name sein: %1</translation>
    </message>
    <message>
        <source>A look of this name is there already; it will be replaced.</source>
        <translation>Eine Vorlage dieses Namens gibt es schon; sie wird ersetzt.</translation>
    </message>
</context>
<context>
    <name>quorvane::ShortcutsSheet</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Canvas</source>
        <translation>Arbeitsfläche</translation>
    </message>
    <message>
        <source>Move the label by 1</source>
        <translation>Beschriftung um 1 verschieben</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Move the label by 10</source>
        <translation>Beschriftung um 10 verschieben</translation>
    </message>
    <message>
        <source>Shift+Arrow keys</source>
        <translation>Umschalt+Pfeiltasten</translation>
    </message>
    <message>
        <source>Centre the label</source>
        <translation>Beschriftung zentrieren</translation>
    </message>
    <message>
        <source>Put the label back while it is dragged</source>
        <translation>Beschriftung beim Ziehen zurücklegen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Open the menus</source>
        <translation>Menüs öffnen</translation>
    </message>
    <message>
        <source>Move the overlay instead, or the label again</source>
        <translation>Stattdessen das Abzeichen verschieben oder wieder die Beschriftung</translation>
    </message>
</context>
<context>
    <name>quorvane::Slider</name>
    <message>
        <source>Type a number; a double click on the slider puts the usual value back</source>
        <translation>Geben Sie eine Zahl ein; ein Doppelklick auf den Regler stellt den üblichen Wert ein</translation>
    </message>
</context>
<context>
    <name>quorvane::TintBar</name>
    <message>
        <source>No Tint</source>
        <translation>Keine Tönung</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Tönung</translation>
    </message>
    <message>
        <source>Other tint</source>
        <translation>Andere Tönung</translation>
    </message>
</context>
<context>
    <name>quorvane::UpdateSheet</name>
    <message>
        <source>Quorvane %1 Is Available</source>
        <translation>Quorvane %1 ist verfügbar</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Sie haben Version %1.</translation>
    </message>
    <message>
        <source>What Is New</source>
        <translation>Was ist neu</translation>
    </message>
    <message>
        <source>No page is named from which it can be downloaded.</source>
        <translation>Es ist keine Seite angegeben, von der sie heruntergeladen werden kann.</translation>
    </message>
    <message>
        <source>The page at %1 opens in your browser. Nothing is downloaded or installed without you.</source>
        <translation>Die Seite bei %1 öffnet sich in Ihrem Browser. Ohne Sie wird nichts heruntergeladen oder installiert.</translation>
    </message>
    <message>
        <source>&amp;Open Download Page</source>
        <translation>&amp;Download-Seite öffnen</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>Diese &amp;Version überspringen</translation>
    </message>
    <message>
        <source>The new one came out on %1.</source>
        <translation>Die neue ist am %1 erschienen.</translation>
    </message>
</context>
</TS>
