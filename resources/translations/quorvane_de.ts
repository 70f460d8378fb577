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
