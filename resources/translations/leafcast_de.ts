<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_GB">
<context>
    <name>FlashTmplFileCell</name>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Files of this kind</source>
        <translation>Dateien dieser Art</translation>
    </message>
    <message>
        <source>No file</source>
        <translation>Keine Datei</translation>
    </message>
</context>
<context>
    <name>FlashTmplSwitchCell</name>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
</context>
<context>
    <name>leafcast::AboutWindow</name>
    <message>
        <source>About Leafcast</source>
        <translation>Über Leafcast</translation>
    </message>
    <message>
        <source>&lt;h2&gt;Leafcast %1&lt;/h2&gt;&lt;p&gt;Turns a PDF into a page-turning digital book.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Leafcast %1&lt;/h2&gt;&lt;p&gt;Macht aus einem PDF ein digitales Buch zum Blättern.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>What Leafcast is made with, and its licences</source>
        <translation>Womit Leafcast gemacht ist, und die Lizenzen</translation>
    </message>
</context>
<context>
    <name>leafcast::ApplyItem</name>
    <message>
        <source>&amp;Apply Changes</source>
        <translation>Änderungen &amp;anwenden</translation>
    </message>
    <message>
        <source>Show the changes in the preview</source>
        <translation>Die Änderungen in der Vorschau zeigen</translation>
    </message>
</context>
<context>
    <name>leafcast::FlashTemplateOutlineDelegate</name>
    <message>
        <source>Can&apos;t be used: %1</source>
        <translation>Nicht verwendbar: %1</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>(Untitled)</source>
        <translation>(Ohne Titel)</translation>
    </message>
    <message>
        <source>(Unknown)</source>
        <translation>(Unbekannt)</translation>
    </message>
    <message>
        <source>Reset of “%1”</source>
        <translation>Zurücksetzen von „%1“</translation>
    </message>
    <message>
        <source>Reset of All Settings</source>
        <translation>Zurücksetzen aller Einstellungen</translation>
    </message>
</context>
<context>
    <name>leafcast::HowtoPreveiwWindowDelegate</name>
    <message>
        <source>Show on a Tablet</source>
        <translation>Auf einem Tablet zeigen</translation>
    </message>
    <message>
        <source>1. Connect the tablet to the network of this computer.</source>
        <translation>1. Verbinden Sie das Tablet mit dem Netz dieses Computers.</translation>
    </message>
    <message>
        <source>2. Point its camera at the code, or open the address.</source>
        <translation>2. Richten Sie seine Kamera auf den Code, oder öffnen Sie die Adresse.</translation>
    </message>
    <message>
        <source>3. After each change that you apply, load the page anew.</source>
        <translation>3. Laden Sie die Seite nach jeder angewendeten Änderung neu.</translation>
    </message>
    <message>
        <source>Network address</source>
        <translation>Netzwerkadresse</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>This computer only: it is in no network.</source>
        <translation>Nur dieser Computer: Er ist in keinem Netz.</translation>
    </message>
    <message>
        <source>The preview server is starting …</source>
        <translation>Der Vorschauserver wird gestartet …</translation>
    </message>
    <message>
        <source>The preview server does not run: %1.</source>
        <translation>Der Vorschauserver läuft nicht: %1.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
</context>
<context>
    <name>leafcast::ImportForm</name>
    <message>
        <source>Choose a PDF, or drop one here</source>
        <translation>Wählen Sie ein PDF, oder legen Sie eines hier ab</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>D&amp;urchsuchen …</translation>
    </message>
    <message>
        <source>&amp;Images…</source>
        <translation>B&amp;ilder …</translation>
    </message>
    <message>
        <source>Make the book from picture files instead</source>
        <translation>Das Buch stattdessen aus Bilddateien machen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Look at the file in another program</source>
        <translation>Die Datei in einem anderen Programm ansehen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>1-3,7</source>
        <translation>1-3,7</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Beste</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Kleinste Dateien</translation>
    </message>
    <message>
        <source>Import &amp;links</source>
        <translation>&amp;Links importieren</translation>
    </message>
    <message>
        <source>Import boo&amp;kmarks as table of contents</source>
        <translation>Le&amp;sezeichen als Inhaltsverzeichnis importieren</translation>
    </message>
    <message>
        <source>Page range</source>
        <translation>Seitenbereich</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Fortschritt des Imports</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Datei:</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualität:</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;Range:</source>
        <translation>&amp;Bereich:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Seiten:</translation>
    </message>
</context>
<context>
    <name>leafcast::ImportWindowDelegate</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Import PDF file does not exist.</source>
        <translation>Die PDF-Datei, die importiert werden soll, gibt es nicht.</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Importing:%1/%2</source>
        <translation>Importieren: %1/%2</translation>
    </message>
    <message>
        <source>Images that become the pages: %1</source>
        <translation>Bilder, die zu Seiten werden: %1</translation>
    </message>
    <message>
        <source>The PDF is locked; type its password.</source>
        <translation>Das PDF ist gesperrt; geben Sie sein Passwort ein.</translation>
    </message>
    <message>
        <source>This password does not open the PDF.</source>
        <translation>Dieses Passwort öffnet das PDF nicht.</translation>
    </message>
    <message>
        <source>Choose a PDF</source>
        <translation>Ein PDF wählen</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf *.PDF)</source>
        <translation>PDF-Dokumente (*.pdf *.PDF)</translation>
    </message>
    <message>
        <source>Choose the pages</source>
        <translation>Die Seiten wählen</translation>
    </message>
    <message>
        <source>Images (*.jpg *.jpeg *.png *.gif)</source>
        <translation>Bilder (*.jpg *.jpeg *.png *.gif)</translation>
    </message>
</context>
<context>
    <name>leafcast::Leafcast_for_iPad_MacAppDelegate</name>
    <message>
        <source>No Recent Files</source>
        <translation>Keine zuletzt benutzten Dateien</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Liste leeren</translation>
    </message>
    <message>
        <source>Export Settings</source>
        <translation>Einstellungen exportieren</translation>
    </message>
    <message>
        <source>Settings (*.txt)</source>
        <translation>Einstellungen (*.txt)</translation>
    </message>
    <message>
        <source>Import Settings</source>
        <translation>Einstellungen importieren</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <source>This template can&apos;t be used.</source>
        <translation>Diese Vorlage ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>Pages: %1   Template: %2   Style: %3</source>
        <translation>Seiten: %1   Vorlage: %2   Stil: %3</translation>
    </message>
</context>
<context>
    <name>leafcast::MainWindow</name>
    <message>
        <source>Preview of the book</source>
        <translation>Vorschau des Buchs</translation>
    </message>
    <message>
        <source>&amp;Import PDF…</source>
        <translation>PDF &amp;importieren …</translation>
    </message>
    <message>
        <source>Make a book of a PDF or of pictures</source>
        <translation>Aus einem PDF oder aus Bildern ein Buch machen</translation>
    </message>
    <message>
        <source>&amp;Publish…</source>
        <translation>&amp;Veröffentlichen …</translation>
    </message>
    <message>
        <source>Write the book as a folder or as a package</source>
        <translation>Das Buch als Ordner oder als Paket schreiben</translation>
    </message>
    <message>
        <source>&amp;Template…</source>
        <translation>&amp;Vorlage …</translation>
    </message>
    <message>
        <source>Choose how the book is read, and its style</source>
        <translation>Wählen, wie das Buch gelesen wird, und seinen Stil</translation>
    </message>
    <message>
        <source>&amp;Export Settings…</source>
        <translation>Einstellungen e&amp;xportieren …</translation>
    </message>
    <message>
        <source>Save the values of all properties to a file</source>
        <translation>Die Werte aller Eigenschaften in einer Datei sichern</translation>
    </message>
    <message>
        <source>I&amp;mport Settings…</source>
        <translation>Einstellungen i&amp;mportieren …</translation>
    </message>
    <message>
        <source>Take the values of properties from a file</source>
        <translation>Die Werte von Eigenschaften aus einer Datei nehmen</translation>
    </message>
    <message>
        <source>Show on a &amp;Tablet…</source>
        <translation>Auf einem &amp;Tablet zeigen …</translation>
    </message>
    <message>
        <source>How to see the book on a tablet of this network</source>
        <translation>Wie das Buch auf einem Tablet in diesem Netz zu sehen ist</translation>
    </message>
    <message>
        <source>Leafcast &amp;Guide</source>
        <translation>Leafcast-&amp;Handbuch</translation>
    </message>
    <message>
        <source>Open the guide</source>
        <translation>Das Handbuch öffnen</translation>
    </message>
    <message>
        <source>&amp;About Leafcast</source>
        <translation>&amp;Über Leafcast</translation>
    </message>
    <message>
        <source>Version and licences</source>
        <translation>Version und Lizenzen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt benutzt</translation>
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
        <source>&amp;Book</source>
        <translation>B&amp;uch</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Wie die A&amp;rbeitsfläche</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
</context>
<context>
    <name>leafcast::OutputForm</name>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wählen …</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>Show the folder in the file manager</source>
        <translation>Den Ordner in der Dateiverwaltung zeigen</translation>
    </message>
    <message>
        <source>Without extension, such as index</source>
        <translation>Ohne Endung, etwa index</translation>
    </message>
    <message>
        <source>A folder with a page that any browser opens</source>
        <translation>Ein Ordner mit einer Seite, die jeder Browser öffnet</translation>
    </message>
    <message>
        <source>A package that opens by a double click</source>
        <translation>Ein Paket, das sich mit einem Doppelklick öffnet</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <translation>&amp;Mehr</translation>
    </message>
    <message>
        <source>What the page says to search engines, and where it is shared</source>
        <translation>Was die Seite Suchmaschinen sagt, und dort, wo sie geteilt wird</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Publish</source>
        <translation>Veröffentlichen</translation>
    </message>
    <message>
        <source>Progress of the publication</source>
        <translation>Fortschritt der Veröffentlichung</translation>
    </message>
    <message>
        <source>Publish &amp;as:</source>
        <translation>Veröffentlichen &amp;als:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>&amp;Keywords:</source>
        <translation>Stichwö&amp;rter:</translation>
    </message>
</context>
<context>
    <name>leafcast::OutputWindowDelegate</name>
    <message>
        <source>Publish</source>
        <translation>Veröffentlichen</translation>
    </message>
    <message>
        <source>Choose the folder of the book</source>
        <translation>Den Ordner des Buchs wählen</translation>
    </message>
    <message>
        <source>Choose folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Wird angehalten …</translation>
    </message>
    <message>
        <source>There is no book to publish.</source>
        <translation>Es gibt kein Buch zu veröffentlichen.</translation>
    </message>
    <message>
        <source>Publish there all the same?</source>
        <translation>Trotzdem dort veröffentlichen?</translation>
    </message>
    <message>
        <source>Publishing…</source>
        <translation>Veröffentlichen …</translation>
    </message>
    <message>
        <source>Reading the text of the pages: %1/%2</source>
        <translation>Der Text der Seiten wird gelesen: %1/%2</translation>
    </message>
    <message>
        <source>Publishing was stopped; the book in %1 is not complete.</source>
        <translation>Das Veröffentlichen wurde angehalten; das Buch in %1 ist nicht vollständig.</translation>
    </message>
    <message>
        <source>Open the result files?</source>
        <translation>Das Ergebnis öffnen?</translation>
    </message>
    <message>
        <source>Publish finished! Open the it?</source>
        <translation>Das Buch ist veröffentlicht. Möchten Sie es öffnen?</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>leafcast::PageRangeCheck</name>
    <message>
        <source>Type the pages to import, such as 1-3,7.</source>
        <translation>Geben Sie die Seiten an, die importiert werden sollen, etwa 1-3,7.</translation>
    </message>
    <message>
        <source>There is a comma too many.</source>
        <translation>Hier ist ein Komma zu viel.</translation>
    </message>
    <message>
        <source>“%1” is no page number; write pages as in 1-3,7.</source>
        <translation>„%1“ ist keine Seitenzahl; schreiben Sie Seiten wie in 1-3,7.</translation>
    </message>
    <message>
        <source>There is no page “%1”; pages are counted from 1.</source>
        <translation>Es gibt keine Seite „%1“; Seiten werden ab 1 gezählt.</translation>
    </message>
    <message>
        <source>“%1” runs backwards; write the smaller number first.</source>
        <translation>„%1“ läuft rückwärts; schreiben Sie die kleinere Zahl zuerst.</translation>
    </message>
    <message>
        <source>There is no page %1; the last one is %2.</source>
        <translation>Es gibt keine Seite %1; die letzte ist %2.</translation>
    </message>
    <message>
        <source>“%1” names more pages than a book can have.</source>
        <translation>„%1“ nennt mehr Seiten, als ein Buch haben kann.</translation>
    </message>
</context>
<context>
    <name>leafcast::PreviewServer</name>
    <message>
        <source>it ended with status %1</source>
        <translation>er endete mit Status %1</translation>
    </message>
</context>
<context>
    <name>leafcast::PropertyEdits</name>
    <message>
        <source>Change of “%1”</source>
        <translation>Änderung von „%1“</translation>
    </message>
</context>
<context>
    <name>leafcast::PropertyHelp</name>
    <message>
        <source>Description of the selected setting</source>
        <translation>Beschreibung der gewählten Einstellung</translation>
    </message>
    <message>
        <source>Select a setting to read what it does.</source>
        <translation>Wählen Sie eine Einstellung, um zu lesen, was sie tut.</translation>
    </message>
    <message>
        <source>This value can&apos;t be used: %1.</source>
        <translation>Dieser Wert ist nicht verwendbar: %1.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>leafcast::PropertyPanel</name>
    <message>
        <source>Find a setting</source>
        <translation>Eine Einstellung suchen</translation>
    </message>
    <message>
        <source>Settings of the template</source>
        <translation>Einstellungen der Vorlage</translation>
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
        <source>Reset All to Defaults</source>
        <translation>Alles auf Vorgaben zurücksetzen</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Alles zurücksetzen</translation>
    </message>
    <message>
        <source>Find a Setting</source>
        <translation>Einstellung suchen</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>No File</source>
        <translation>Keine Datei</translation>
    </message>
    <message>
        <source>Reset to Default</source>
        <translation>Auf Vorgabe zurücksetzen</translation>
    </message>
    <message>
        <source>No template is open.</source>
        <translation>Es ist keine Vorlage offen.</translation>
    </message>
    <message>
        <source>This template has no settings.</source>
        <translation>Diese Vorlage hat keine Einstellungen.</translation>
    </message>
    <message>
        <source>No setting matches “%1”.</source>
        <translation>Keine Einstellung passt zu „%1“.</translation>
    </message>
</context>
<context>
    <name>leafcast::QRCodeView</name>
    <message>
        <source>QR code of %1</source>
        <translation>QR-Code von %1</translation>
    </message>
</context>
<context>
    <name>leafcast::SelectTemplateWindowDelegate</name>
    <message>
        <source>Template and Style</source>
        <translation>Vorlage und Stil</translation>
    </message>
    <message>
        <source>&amp;Template</source>
        <translation>&amp;Vorlage</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>&amp;Stil</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Look for templates that were added</source>
        <translation>Nach hinzugekommenen Vorlagen suchen</translation>
    </message>
</context>
<context>
    <name>leafcast::Sentences</name>
    <message>
        <source>it does not exist</source>
        <translation>sie existiert nicht</translation>
    </message>
    <message>
        <source>it may not be read</source>
        <translation>sie darf nicht gelesen werden</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>den Ordner %1 gibt es nicht</translation>
    </message>
    <message>
        <source>the disk is full or failing</source>
        <translation>der Datenträger ist voll oder fehlerhaft</translation>
    </message>
    <message>
        <source>its folder is read-only</source>
        <translation>ihr Ordner ist schreibgeschützt</translation>
    </message>
    <message>
        <source>%1 can&apos;t be used: %2</source>
        <translation>%1 ist nicht verwendbar: %2</translation>
    </message>
    <message>
        <source>the page range names none of the %1 images</source>
        <translation>der Seitenbereich nennt keines der %1 Bilder</translation>
    </message>
    <message>
        <source>the PDF %1 can&apos;t be opened: %2</source>
        <translation>das PDF %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>%1 has no pages</source>
        <translation>%1 hat keine Seiten</translation>
    </message>
    <message>
        <source>the pages of %1 can&apos;t be imported</source>
        <translation>die Seiten von %1 können nicht importiert werden</translation>
    </message>
    <message>
        <source>no page of %1 can be drawn; of the first: %2</source>
        <translation>keine Seite von %1 kann gezeichnet werden; zur ersten: %2</translation>
    </message>
    <message>
        <source>%1 of %2 could not be drawn: %3</source>
        <translation>%1 von %2 konnten nicht gezeichnet werden: %3</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 Seite</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 Seiten</translation>
    </message>
    <message>
        <source>the page range names more than %1 pages</source>
        <translation>der Seitenbereich nennt mehr als %1 Seiten</translation>
    </message>
    <message>
        <source>the document could not be opened</source>
        <translation>das Dokument konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>the document has no such page</source>
        <translation>das Dokument hat keine solche Seite</translation>
    </message>
    <message>
        <source>its picture can&apos;t be written: </source>
        <translation>das Bild kann nicht geschrieben werden: </translation>
    </message>
    <message>
        <source>it does not exist or may not be read</source>
        <translation>die Datei existiert nicht oder darf nicht gelesen werden</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>es ist leer</translation>
    </message>
    <message>
        <source>it is not a PDF or damaged beyond repair</source>
        <translation>es ist kein PDF oder zu sehr beschädigt</translation>
    </message>
    <message>
        <source>it is locked and needs a password</source>
        <translation>es ist gesperrt und braucht ein Passwort</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>das Passwort ist falsch</translation>
    </message>
    <message>
        <source>it needs more memory than a PDF may use</source>
        <translation>es braucht mehr Speicher, als ein PDF benutzen darf</translation>
    </message>
    <message>
        <source>the work folder can&apos;t be written</source>
        <translation>in den Arbeitsordner kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>Status %1</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>Signal %1</translation>
    </message>
    <message>
        <source>it is not known how</source>
        <translation>es ist nicht bekannt, wie</translation>
    </message>
    <message>
        <source>the PDF service could not be started: </source>
        <translation>der PDF-Dienst konnte nicht gestartet werden: </translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>es wurde angehalten</translation>
    </message>
    <message>
        <source>the PDF service could not read it</source>
        <translation>der PDF-Dienst konnte es nicht lesen</translation>
    </message>
    <message>
        <source>the program leafcast-pdf is missing</source>
        <translation>das Programm leafcast-pdf fehlt</translation>
    </message>
    <message>
        <source>it took longer than a second</source>
        <translation>es dauerte länger als eine Sekunde</translation>
    </message>
    <message>
        <source>it took longer than %1 seconds</source>
        <translation>es dauerte länger als %1 Sekunden</translation>
    </message>
    <message>
        <source>the PDF service gave an answer that makes no sense</source>
        <translation>der PDF-Dienst gab eine Antwort ohne Sinn</translation>
    </message>
    <message>
        <source>the PDF service crashed over it (%1)</source>
        <translation>der PDF-Dienst stürzte daran ab (%1)</translation>
    </message>
    <message>
        <source>it must be a name without a folder</source>
        <translation>es muss ein Name ohne Ordner sein</translation>
    </message>
    <message>
        <source>it starts with a dot, which would hide it</source>
        <translation>er beginnt mit einem Punkt, was ihn verstecken würde</translation>
    </message>
    <message>
        <source>it holds a control character</source>
        <translation>er enthält ein Steuerzeichen</translation>
    </message>
    <message>
        <source>the folder %1 holds no book but other things (%2), which the book would lie among and may replace</source>
        <translation>der Ordner %1 enthält kein Buch, sondern anderes (%2); das Buch käme dazwischen zu liegen und kann etwas ersetzen</translation>
    </message>
    <message>
        <source>%1 is no book package and would be lost with all it holds%2</source>
        <translation>%1 ist kein Buchpaket und ginge mit allem, was es enthält, verloren%2</translation>
    </message>
    <message>
        <source>the output folder %1 can&apos;t be made: %2 is no folder</source>
        <translation>der Ausgabeordner %1 kann nicht angelegt werden: %2 ist kein Ordner</translation>
    </message>
    <message>
        <source>the output folder %1 can&apos;t be written to: %2</source>
        <translation>in den Ausgabeordner %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the name %1 has %2 bytes, and in %3 there is room for %4</source>
        <translation>der Name %1 hat %2 Byte, und in %3 ist Platz für %4</translation>
    </message>
    <message>
        <source>the book</source>
        <translation>das Buch</translation>
    </message>
    <message>
        <source>the name can&apos;t be used: %1</source>
        <translation>der Name ist nicht verwendbar: %1</translation>
    </message>
    <message>
        <source>the output folder has no name</source>
        <translation>der Ausgabeordner hat keinen Namen</translation>
    </message>
    <message>
        <source>the output folder %1 can&apos;t be made: there is no folder %2</source>
        <translation>der Ausgabeordner %1 kann nicht angelegt werden: es gibt keinen Ordner %2</translation>
    </message>
    <message>
        <source>the book could not be written: %1</source>
        <translation>das Buch konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>the output folder %1 can&apos;t be made</source>
        <translation>der Ausgabeordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>another program is writing into %1; try again when it is done</source>
        <translation>ein anderes Programm schreibt gerade in %1; versuchen Sie es danach noch einmal</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>%1 konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1 and %2 more could not be written</source>
        <translation>%1 und %2 weitere konnten nicht geschrieben werden</translation>
    </message>
    <message>
        <source>there is no room for %1 in %2: it needs %3 more, and the disk has %4 left</source>
        <translation>für %1 ist in %2 kein Platz: es fehlen %3, und auf dem Datenträger sind %4 frei</translation>
    </message>
    <message>
        <source>it must be a number</source>
        <translation>es muss eine Zahl sein</translation>
    </message>
    <message>
        <source>it must be a colour such as #1a2b3c</source>
        <translation>es muss eine Farbe wie #1a2b3c sein</translation>
    </message>
    <message>
        <source>it must be one of %1</source>
        <translation>möglich sind %1</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it must be a file, not a folder or a device</source>
        <translation>es muss eine Datei sein, kein Ordner und kein Gerät</translation>
    </message>
    <message>
        <source>it must be yes or no</source>
        <translation>es muss ja oder nein sein (yes, no)</translation>
    </message>
    <message>
        <source>a double quote</source>
        <translation>ein gerades Anführungszeichen</translation>
    </message>
    <message>
        <source>a backslash</source>
        <translation>einen umgekehrten Schrägstrich</translation>
    </message>
    <message>
        <source>a line break</source>
        <translation>einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>its value holds %1</source>
        <translation>der Wert enthält %1</translation>
    </message>
    <message>
        <source>its value is empty and must be a number</source>
        <translation>der Wert ist leer und muss eine Zahl sein</translation>
    </message>
    <message>
        <source>its value &quot;%1&quot; is not a number</source>
        <translation>der Wert „%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>its key is not a name that a script can hold</source>
        <translation>der Schlüssel ist kein Name, den ein Skript fassen kann</translation>
    </message>
</context>
<context>
    <name>leafcast::TemplateText</name>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>What the pages are and how they are shown.</source>
        <translation>Was die Seiten sind und wie sie gezeigt werden.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title in the tool bar. Left empty, the title of the HTML page is shown.</source>
        <translation>Titel in der Werkzeugleiste. Bleibt er leer, wird der Titel der HTML-Seite gezeigt.</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Width of a page. It follows the imported document, and together with the height gives the shape of the pages where no picture tells it.</source>
        <translation>Breite einer Seite. Sie folgt dem importierten Dokument und gibt zusammen mit der Höhe die Form der Seiten vor, wo kein Bild sie zeigt.</translation>
    </message>
    <message>
        <source>Page height</source>
        <translation>Seitenhöhe</translation>
    </message>
    <message>
        <source>Height of a page. It follows the imported document, and together with the width gives the shape of the pages where no picture tells it.</source>
        <translation>Höhe einer Seite. Sie folgt dem importierten Dokument und gibt zusammen mit der Breite die Form der Seiten vor, wo kein Bild sie zeigt.</translation>
    </message>
    <message>
        <source>Pages side by side</source>
        <translation>Seiten nebeneinander</translation>
    </message>
    <message>
        <source>&quot;Double&quot; shows two facing pages, &quot;Single&quot; one page at a time. &quot;Auto&quot; takes what fits the window better.</source>
        <translation>„Double“ zeigt zwei Seiten nebeneinander, „Single“ immer nur eine. „Auto“ nimmt, was besser ins Fenster passt.</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Umschlag</translation>
    </message>
    <message>
        <source>Where two pages are shown, the first page stands alone like the cover of a printed book. Switched off, pages 1 and 2 face each other.</source>
        <translation>Wo zwei Seiten gezeigt werden, steht die erste allein wie der Umschlag eines gedruckten Buchs. Ausgeschaltet liegen die Seiten 1 und 2 nebeneinander.</translation>
    </message>
    <message>
        <source>First page stands alone</source>
        <translation>Erste Seite steht allein</translation>
    </message>
    <message>
        <source>Hard cover</source>
        <translation>Fester Einband</translation>
    </message>
    <message>
        <source>The first and the last leaf turn stiffly like boards. Switched off, they bend like the other leaves.</source>
        <translation>Das erste und das letzte Blatt werden steif wie Buchdeckel umgeschlagen. Ausgeschaltet biegen sie sich wie die anderen Blätter.</translation>
    </message>
    <message>
        <source>Covers are stiff</source>
        <translation>Umschlag ist steif</translation>
    </message>
    <message>
        <source>Reading direction</source>
        <translation>Leserichtung</translation>
    </message>
    <message>
        <source>For books that are read from right to left: the first page is the rightmost one, and the left arrow goes forward.</source>
        <translation>Für Bücher, die von rechts nach links gelesen werden: Die erste Seite liegt ganz rechts, und der linke Pfeil blättert vor.</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Colour of the paper, seen around pages of another shape and until a page is loaded.</source>
        <translation>Farbe des Papiers, zu sehen um Seiten anderer Form und bis eine Seite geladen ist.</translation>
    </message>
    <message>
        <source>Page edges</source>
        <translation>Buchschnitt</translation>
    </message>
    <message>
        <source>Shows the edges of the pages before and after the open ones at the sides of the book. A click on them jumps.</source>
        <translation>Zeigt an den Seiten des Buchs die Kanten der Seiten vor und nach den offenen. Ein Klick darauf springt dorthin.</translation>
    </message>
    <message>
        <source>Edges of the other pages</source>
        <translation>Kanten der anderen Seiten</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Draws a soft shadow around the pages.</source>
        <translation>Zeichnet einen weichen Schatten um die Seiten.</translation>
    </message>
    <message>
        <source>Pages cast a shadow</source>
        <translation>Seiten werfen Schatten</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>What lies behind the pages.</source>
        <translation>Was hinter den Seiten liegt.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Colour behind the pages. A background image lies over it.</source>
        <translation>Farbe hinter den Seiten. Ein Hintergrundbild liegt darüber.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Picture or texture behind the pages.</source>
        <translation>Bild oder Muster hinter den Seiten.</translation>
    </message>
    <message>
        <source>Image position</source>
        <translation>Lage des Bilds</translation>
    </message>
    <message>
        <source>&quot;Tile&quot; repeats the background image, &quot;Fill&quot; stretches it over the whole window and keeps its shape, &quot;Center&quot; shows it once in the middle.</source>
        <translation>„Tile“ wiederholt das Hintergrundbild, „Fill“ füllt damit das ganze Fenster und behält seine Form, „Center“ zeigt es einmal in der Mitte.</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>The bar above the pages with the title and the buttons.</source>
        <translation>Die Leiste über den Seiten mit dem Titel und den Knöpfen.</translation>
    </message>
    <message>
        <source>Shows the tool bar. Switched off, the buttons beside the pages remain.</source>
        <translation>Zeigt die Werkzeugleiste. Ausgeschaltet bleiben die Knöpfe neben den Seiten.</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>Colour of the tool bar, the panels and the buttons beside the pages.</source>
        <translation>Farbe der Werkzeugleiste, der Seitenfelder und der Knöpfe neben den Seiten.</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Colour of text and symbols on the tool bar, the panels and the buttons beside the pages.</source>
        <translation>Farbe von Text und Symbolen auf der Werkzeugleiste, den Seitenfeldern und den Knöpfen neben den Seiten.</translation>
    </message>
    <message>
        <source>Button that changes between one page at a time, two, and other pairs of pages.</source>
        <translation>Knopf, der zwischen einer Seite, zweien und anderen Seitenpaaren wechselt.</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Button that fills the whole screen with the book, in browsers that can do so.</source>
        <translation>Knopf, der das Buch auf dem ganzen Bildschirm zeigt, in Browsern, die das können.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Button that prints the pages that the reader chooses.</source>
        <translation>Knopf, der die Seiten druckt, die der Leser wählt.</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>How readers find their way through the book.</source>
        <translation>Wie sich Leser im Buch zurechtfinden.</translation>
    </message>
    <message>
        <source>Turn buttons</source>
        <translation>Blätterknöpfe</translation>
    </message>
    <message>
        <source>Buttons beside the pages that turn forward and back.</source>
        <translation>Knöpfe neben den Seiten, die vor- und zurückblättern.</translation>
    </message>
    <message>
        <source>Page field</source>
        <translation>Seitenfeld</translation>
    </message>
    <message>
        <source>Field that shows where the reader is, and takes a page number or a page label to go there.</source>
        <translation>Feld, das zeigt, wo der Leser ist, und eine Seitenzahl oder -bezeichnung nimmt, um dorthin zu gehen.</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Schieberegler</translation>
    </message>
    <message>
        <source>Slider below the pages that runs through the whole book.</source>
        <translation>Schieberegler unter den Seiten, der durch das ganze Buch führt.</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Seitenübersicht</translation>
    </message>
    <message>
        <source>Panel with small pictures of all pages.</source>
        <translation>Seitenfeld mit kleinen Bildern aller Seiten.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Panel with the document&apos;s bookmarks. A document without bookmarks has no such button.</source>
        <translation>Seitenfeld mit den Lesezeichen des Dokuments. Ein Dokument ohne Lesezeichen hat keinen solchen Knopf.</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>The arrow keys, Page up, Page down, Home and End turn pages, and other keys search and zoom; the question mark shows them all.</source>
        <translation>Die Pfeiltasten, Bild auf, Bild ab, Pos1 und Ende blättern; andere Tasten suchen und vergrößern. Das Fragezeichen zeigt sie alle.</translation>
    </message>
    <message>
        <source>Keys work</source>
        <translation>Tasten wirken</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>The mouse wheel turns pages. Zooming with Ctrl and the wheel stays possible when it is switched off.</source>
        <translation>Das Mausrad blättert. Vergrößern mit Strg und Mausrad bleibt möglich, wenn das ausgeschaltet ist.</translation>
    </message>
    <message>
        <source>Wheel turns pages</source>
        <translation>Mausrad blättert</translation>
    </message>
    <message>
        <source>Turn duration</source>
        <translation>Dauer des Blätterns</translation>
    </message>
    <message>
        <source>How long a page takes to turn, in milliseconds. Pages of readers who ask their system for less motion fade instead.</source>
        <translation>Wie lange das Umblättern einer Seite dauert, in Millisekunden. Bei Lesern, die ihr System um weniger Bewegung bitten, wird übergeblendet.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Opens the book again at the page that was read last in the same browser.</source>
        <translation>Öffnet das Buch wieder auf der Seite, die im selben Browser zuletzt gelesen wurde.</translation>
    </message>
    <message>
        <source>Is remembered</source>
        <translation>Wird gemerkt</translation>
    </message>
    <message>
        <source>Automatic turning</source>
        <translation>Automatisch blättern</translation>
    </message>
    <message>
        <source>Button that makes the pages turn by themselves until it is pressed again.</source>
        <translation>Knopf, der die Seiten von selbst umblättert, bis er wieder gedrückt wird.</translation>
    </message>
    <message>
        <source>Turns every</source>
        <translation>Blättert alle</translation>
    </message>
    <message>
        <source>How long a page stays when pages turn by themselves, in seconds.</source>
        <translation>Wie lange eine Seite beim automatischen Blättern stehen bleibt, in Sekunden.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>What is heard.</source>
        <translation>Was zu hören ist.</translation>
    </message>
    <message>
        <source>A rustle of paper when a page turns, from the start. Browsers keep silent until the reader has touched the page.</source>
        <translation>Ein Rascheln von Papier beim Umblättern, von Anfang an. Browser bleiben still, bis der Leser die Seite berührt hat.</translation>
    </message>
    <message>
        <source>Pages rustle</source>
        <translation>Seiten rascheln</translation>
    </message>
    <message>
        <source>Sound button</source>
        <translation>Tonknopf</translation>
    </message>
    <message>
        <source>Button that switches the sound of turning pages on and off.</source>
        <translation>Knopf, der den Ton des Umblätterns ein- und ausschaltet.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Language of what is not the document.</source>
        <translation>Sprache dessen, was nicht zum Dokument gehört.</translation>
    </message>
    <message>
        <source>Language of buttons and messages; Chinese is simplified Chinese. &quot;Browser&quot; follows the language of the reader&apos;s browser.</source>
        <translation>Sprache der Knöpfe und Meldungen; Chinesisch ist vereinfachtes Chinesisch. „Browser“ folgt der Sprache des Browsers.</translation>
    </message>
    <message>
        <source>Logo and links</source>
        <translation>Logo und Links</translation>
    </message>
    <message>
        <source>Your logo in the tool bar, and where links lead.</source>
        <translation>Ihr Logo in der Werkzeugleiste, und wohin Links führen.</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Picture shown at the start of the tool bar, scaled to its height.</source>
        <translation>Bild am Anfang der Werkzeugleiste, auf ihre Höhe verkleinert.</translation>
    </message>
    <message>
        <source>Logo link</source>
        <translation>Link des Logos</translation>
    </message>
    <message>
        <source>Web address that a click on the logo opens.</source>
        <translation>Webadresse, die ein Klick auf das Logo öffnet.</translation>
    </message>
    <message>
        <source>Link colour</source>
        <translation>Linkfarbe</translation>
    </message>
    <message>
        <source>Colour that marks, on the pages, the link that the pointer or the keyboard is on.</source>
        <translation>Farbe, die auf den Seiten den Link hervorhebt, auf dem Zeiger oder Tastatur stehen.</translation>
    </message>
    <message>
        <source>Open web links in</source>
        <translation>Weblinks öffnen in</translation>
    </message>
    <message>
        <source>&quot;Blank&quot; opens web links and the logo link in a new window, &quot;Self&quot; in the window of the book.</source>
        <translation>„Blank“ öffnet Weblinks und den Link des Logos in einem neuen Fenster, „Self“ im Fenster des Buchs.</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>How readers pass the book on.</source>
        <translation>Wie Leser das Buch weitergeben.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Panel with the address of the page, and the lines that embed the book in another web page.</source>
        <translation>Feld mit der Adresse der Seite und den Zeilen, die das Buch in eine andere Webseite einbetten.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Web address of the book for sharing and embedding. Left empty, the address at which it is read.</source>
        <translation>Webadresse des Buchs zum Teilen und Einbetten. Bleibt sie leer, die Adresse, unter der es gelesen wird.</translation>
    </message>
    <message>
        <source>Reading aids</source>
        <translation>Lesehilfen</translation>
    </message>
    <message>
        <source>What helps readers with the text of the pages.</source>
        <translation>Was Lesern mit dem Text der Seiten hilft.</translation>
    </message>
    <message>
        <source>Reader data</source>
        <translation>Leserdaten</translation>
    </message>
    <message>
        <source>Gives the reader the page list, the links, the contents and the text of the document. Switched off, the pages are plain pictures, and only JPEG pictures of pages that count from 1 without a gap are found.</source>
        <translation>Gibt dem Buch die Seitenliste, die Links, den Inhalt und den Text des Dokuments mit. Ausgeschaltet sind die Seiten bloße Bilder, und nur JPEG-Bilder von Seiten, die lückenlos ab 1 zählen, werden gefunden.</translation>
    </message>
    <message>
        <source>Links and text</source>
        <translation>Links und Text</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Panel that finds words in the text of the document.</source>
        <translation>Seitenfeld, das Wörter im Text des Dokuments findet.</translation>
    </message>
    <message>
        <source>Text view</source>
        <translation>Textansicht</translation>
    </message>
    <message>
        <source>Button that shows the text of the document without its pages.</source>
        <translation>Knopf, der den Text des Dokuments ohne seine Seiten zeigt.</translation>
    </message>
    <message>
        <source>Less motion</source>
        <translation>Weniger Bewegung</translation>
    </message>
    <message>
        <source>Switch that lets pages fade instead of turning, on from the start for readers who ask their system for less motion.</source>
        <translation>Schalter, der Seiten überblendet statt umblättert; von Anfang an eingeschaltet bei Lesern, die ihr System um weniger Bewegung bitten.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Button that shows which keys do what. Where keys do nothing there is no such button.</source>
        <translation>Knopf, der zeigt, welche Taste was tut. Wo Tasten nichts bewirken, gibt es ihn nicht.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Buttons that enlarge the pages. Pinching and double tapping stay possible when it is switched off.</source>
        <translation>Knöpfe, die die Seiten vergrößern. Mit zwei Fingern und durch doppeltes Tippen geht es auch, wenn sie ausgeschaltet sind.</translation>
    </message>
    <message>
        <source>For documents that are read from right to left: the next page comes from the left, and the left arrow goes forward.</source>
        <translation>Für Dokumente, die von rechts nach links gelesen werden: Die nächste Seite kommt von links, und der linke Pfeil geht vor.</translation>
    </message>
    <message>
        <source>Colour of the paper, seen until a page is loaded.</source>
        <translation>Farbe des Papiers, zu sehen, bis eine Seite geladen ist.</translation>
    </message>
    <message>
        <source>Slides</source>
        <translation>Folien</translation>
    </message>
    <message>
        <source>How one page follows the other.</source>
        <translation>Wie eine Seite auf die andere folgt.</translation>
    </message>
    <message>
        <source>Change of pages</source>
        <translation>Seitenwechsel</translation>
    </message>
    <message>
        <source>&quot;Slide&quot; moves the next page in from the side, &quot;Fade&quot; lets it appear, &quot;None&quot; shows it at once.</source>
        <translation>„Slide“ schiebt die nächste Seite von der Seite herein, „Fade“ blendet sie ein, „None“ zeigt sie sofort.</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Dots below the pages, one for each; of many pages, those around the open one. A click on a dot goes there.</source>
        <translation>Punkte unter den Seiten, einer für jede; bei vielen Seiten die um die offene herum. Ein Klick auf einen Punkt geht dorthin.</translation>
    </message>
    <message>
        <source>Buttons beside the pages that go forward and back.</source>
        <translation>Knöpfe neben den Seiten, die vor- und zurückgehen.</translation>
    </message>
    <message>
        <source>The keys of presenters work: arrows, space bar, Page up, Page down, Home and End change pages, a number and Enter go to that page, B shows a black screen; the question mark shows them all.</source>
        <translation>Die Tasten für Vortragende wirken: Pfeile, Leertaste, Bild auf, Bild ab, Pos1 und Ende wechseln die Seite, eine Zahl und die Eingabetaste gehen zu dieser Seite, B zeigt einen schwarzen Bildschirm; das Fragezeichen zeigt sie alle.</translation>
    </message>
    <message>
        <source>The mouse wheel changes pages. Zooming with Ctrl and the wheel stays possible when it is switched off.</source>
        <translation>Das Mausrad wechselt die Seite. Vergrößern mit Strg und Mausrad bleibt möglich, wenn das ausgeschaltet ist.</translation>
    </message>
    <message>
        <source>How long a page takes to slide in, in milliseconds. Pages of readers who ask their system for less motion fade in instead.</source>
        <translation>Wie lange eine Seite zum Hereinschieben braucht, in Millisekunden. Bei Lesern, die ihr System um weniger Bewegung bitten, wird sie eingeblendet.</translation>
    </message>
    <message>
        <source>Slide show</source>
        <translation>Diashow</translation>
    </message>
    <message>
        <source>Button that makes the pages change by themselves until it is pressed again.</source>
        <translation>Knopf, der die Seiten von selbst wechseln lässt, bis er wieder gedrückt wird.</translation>
    </message>
    <message>
        <source>Changes every</source>
        <translation>Wechselt alle</translation>
    </message>
    <message>
        <source>How long a page stays in the slide show, in seconds.</source>
        <translation>Wie lange eine Seite in der Diashow stehen bleibt, in Sekunden.</translation>
    </message>
    <message>
        <source>Switch that lets pages fade in instead of sliding, on from the start for readers who ask their system for less motion.</source>
        <translation>Schalter, der Seiten einblendet statt hereinschiebt; von Anfang an eingeschaltet bei Lesern, die ihr System um weniger Bewegung bitten.</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>How the pages lie below each other.</source>
        <translation>Wie die Seiten untereinander liegen.</translation>
    </message>
    <message>
        <source>Reading width</source>
        <translation>Lesebreite</translation>
    </message>
    <message>
        <source>How wide a page is at most, in pixels of the screen, so that lines stay easy to read in a wide window. With 0 a page is as wide as the window.</source>
        <translation>Wie breit eine Seite höchstens ist, in Bildschirmpixeln, damit Zeilen in einem breiten Fenster gut lesbar bleiben. Mit 0 ist eine Seite so breit wie das Fenster.</translation>
    </message>
    <message>
        <source>Shows the tool bar.</source>
        <translation>Zeigt die Werkzeugleiste.</translation>
    </message>
    <message>
        <source>Colour of the tool bar and the panels.</source>
        <translation>Farbe der Werkzeugleiste und der Seitenfelder.</translation>
    </message>
    <message>
        <source>Colour of text and symbols on the tool bar and the panels.</source>
        <translation>Farbe von Text und Symbolen auf der Werkzeugleiste und den Seitenfeldern.</translation>
    </message>
    <message>
        <source>The arrow keys, the space bar, Page up, Page down, Home and End scroll wherever the focus is, and other keys search and zoom; the question mark shows them all. Switched off, only the browser&apos;s own keys are left.</source>
        <translation>Die Pfeiltasten, die Leertaste, Bild auf, Bild ab, Pos1 und Ende rollen, wo immer der Fokus ist; andere Tasten suchen und vergrößern. Das Fragezeichen zeigt sie alle. Ausgeschaltet bleiben nur die Tasten des Browsers selbst.</translation>
    </message>
</context>
</TS>
