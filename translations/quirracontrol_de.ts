<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>QuirraDesignerPlugin</name>
    <message>
        <source>Envelope and label printing control</source>
        <translation>Steuerelement für Umschlag- und Etikettendruck</translation>
    </message>
    <message>
        <source>Prints addresses on envelopes and label sheets and previews the pieces. Right-click it to choose the piece and lay out its items.</source>
        <translation>Druckt Adressen auf Umschläge und Etikettenbögen und zeigt die Stücke in der Vorschau. Mit einem Rechtsklick wählen Sie die Vorlage und ordnen ihre Elemente an.</translation>
    </message>
</context>
<context>
    <name>QuirraTaskMenu</name>
    <message>
        <source>Select piece…</source>
        <translation>Vorlage auswählen …</translation>
    </message>
    <message>
        <source>Customize piece…</source>
        <translation>Vorlage anpassen …</translation>
    </message>
    <message>
        <source>Edit layout…</source>
        <translation>Layout bearbeiten …</translation>
    </message>
    <message>
        <source>Properties…</source>
        <translation>Eigenschaften …</translation>
    </message>
    <message>
        <source>About…</source>
        <translation>Über …</translation>
    </message>
</context>
<context>
    <name>quirra</name>
    <message>
        <source>holds a double quote</source>
        <translation>enthält ein doppeltes Anführungszeichen</translation>
    </message>
    <message>
        <source>holds a line break</source>
        <translation>enthält einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>first, middle, last, address1, address2, city, state, zip (or nm_first, nm_middle, nm_last, addr_1, addr_2), bar_code (or barcode, imb), and substitute</source>
        <translation>first, middle, last, address1, address2, city, state, zip (oder nm_first, nm_middle, nm_last, addr_1, addr_2), bar_code (oder barcode, imb) und substitute</translation>
    </message>
    <message>
        <source>the columns &quot;%1&quot; and &quot;%2&quot; both name the same field; rename or remove one of them</source>
        <translation>die Spalten „%1“ und „%2“ benennen dasselbe Feld; benennen Sie eine davon um oder entfernen Sie sie</translation>
    </message>
    <message>
        <source>column %1: the name &quot;%2&quot; cannot be used as a substitution name (it holds ^, |, a quote or a line break); rename it</source>
        <translation>Spalte %1: der Name „%2“ taugt nicht als Ersetzungsname (er enthält ^, |, ein Anführungszeichen oder einen Zeilenumbruch); benennen Sie sie um</translation>
    </message>
    <message>
        <source>columns %1 and %2 are both named &quot;%3&quot;; rename one of them</source>
        <translation>die Spalten %1 und %2 heißen beide „%3“; benennen Sie eine davon um</translation>
    </message>
    <message>
        <source>the header row names no address column; name the columns %1</source>
        <translation>die Kopfzeile nennt keine Adressspalte; benennen Sie die Spalten %1</translation>
    </message>
    <message>
        <source>the row has %1 fields but the header has %2; check for a missing or extra comma, or a value with a comma that needs double quotes</source>
        <translation>die Zeile hat %1 Felder, die Kopfzeile aber %2; prüfen Sie auf ein fehlendes oder überzähliges Komma oder einen Wert mit Komma, der in doppelte Anführungszeichen gehört</translation>
    </message>
    <message>
        <source>column %1 (&quot;%2&quot;) %3, which a printed record cannot carry; remove it from the value</source>
        <translation>Spalte %1 („%2“) %3, was ein gedruckter Datensatz nicht tragen kann; entfernen Sie es aus dem Wert</translation>
    </message>
    <message>
        <source>column %1 (&quot;%2&quot;) holds a |, which separates substitution entries; remove it from the value</source>
        <translation>Spalte %1 („%2“) enthält ein |, das Ersetzungseinträge trennt; entfernen Sie es aus dem Wert</translation>
    </message>
    <message>
        <source>Prints a calibration sheet of a piece: each piece&apos;s outline and a cross at its centre, rulers along the top and left edges. Held over a real sheet, it tells how far off the printer puts things; --measured turns that reading into PrinterLeft, PrinterTop, PrinterScaleX and PrinterScaleY.</source>
        <translation>Druckt ein Kalibrierblatt einer Vorlage: den Umriss jedes Stücks mit einem Kreuz in seiner Mitte, Lineale am oberen und linken Rand. Über ein echtes Blatt gehalten, zeigt es, wie weit der Drucker danebenliegt; --measured macht aus dieser Messung PrinterLeft, PrinterTop, PrinterScaleX und PrinterScaleY.</translation>
    </message>
    <message>
        <source>The catalogue piece (required).</source>
        <translation>Die Vorlage aus dem Katalog (erforderlich).</translation>
    </message>
    <message>
        <source>Sets a property first, e.g. the present PrinterLeft.</source>
        <translation>Setzt zuerst eine Eigenschaft, z. B. das bisherige PrinterLeft.</translation>
    </message>
    <message>
        <source>Write the sheet to this PDF file.</source>
        <translation>Das Blatt in diese PDF-Datei schreiben.</translation>
    </message>
    <message>
        <source>Print the sheet on this printer.</source>
        <translation>Das Blatt auf diesem Drucker drucken.</translation>
    </message>
    <message>
        <source>How far the crosses of the first and the last piece lie from the real pieces&apos; centres, inches, right and down positive: LEFT,TOP,RIGHT,BOTTOM.</source>
        <translation>Wie weit die Kreuze des ersten und des letzten Stücks von den Mitten der echten Stücke liegen, in Zoll, nach rechts und unten positiv: LINKS,OBEN,RECHTS,UNTEN.</translation>
    </message>
    <message>
        <source>name the piece with --piece (see quirra pieces)</source>
        <translation>nennen Sie die Vorlage mit --piece (siehe quirra pieces)</translation>
    </message>
    <message>
        <source>there is no piece &quot;%1&quot; in the catalogue (see quirra pieces)</source>
        <translation>der Katalog enthält keine Vorlage „%1“ (siehe quirra pieces)</translation>
    </message>
    <message>
        <source>give one of --pdf FILE, --printer NAME or --measured L,T,R,B</source>
        <translation>geben Sie genau eines von --pdf DATEI, --printer NAME oder --measured L,O,R,U an</translation>
    </message>
    <message>
        <source>--measured %1: give four distances in inches, each within 1 in, as LEFT,TOP,RIGHT,BOTTOM (e.g. 0.03,-0.02,0.05,0.01)</source>
        <translation>--measured %1: geben Sie vier Abstände in Zoll an, jeder innerhalb von 1 Zoll, als LINKS,OBEN,RECHTS,UNTEN (z. B. 0.03,-0.02,0.05,0.01)</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>quirra calibrate: the sheet of &quot;%1&quot; -&gt; %2</source>
        <translation>quirra calibrate: das Blatt von „%1“ -&gt; %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>es gibt keinen Drucker namens „%1“</translation>
    </message>
    <message>
        <source>quirra calibrate: the sheet of &quot;%1&quot; -&gt; printer %2</source>
        <translation>quirra calibrate: das Blatt von „%1“ -&gt; Drucker %2</translation>
    </message>
    <message>
        <source>the piece record has %1 fields; it needs product, piece size, page size, margins, pitch, across x down and page description</source>
        <translation>der Vorlagensatz hat %1 Felder; er braucht Produkt, Stückgröße, Seitenformat, Ränder, Abstand, Spalten x Reihen und Seitenbeschreibung</translation>
    </message>
    <message>
        <source>piece size</source>
        <translation>Stückgröße</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>Seitenformat</translation>
    </message>
    <message>
        <source>margins</source>
        <translation>Ränder</translation>
    </message>
    <message>
        <source>pitch</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>the %1 &quot;%2&quot; is not two numbers above 0 (&quot;W x H&quot;)</source>
        <translation>die Angabe %1 „%2“ besteht nicht aus zwei Zahlen über 0 („B x H“)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not across x down, each 1 or more</source>
        <translation>„%1“ ist nicht Spalten x Reihen, jeweils 1 oder mehr</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1: kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1: line 1: the file is %2 MB, far too large for a catalogue</source>
        <translation>%1: Zeile 1: die Datei ist %2 MB groß, viel zu groß für einen Katalog</translation>
    </message>
    <message>
        <source>the line holds a NUL byte; this is no catalogue text</source>
        <translation>die Zeile enthält ein NUL-Byte; das ist kein Katalogtext</translation>
    </message>
    <message>
        <source>the text is not UTF-8; this is no catalogue text</source>
        <translation>der Text ist kein UTF-8; das ist kein Katalogtext</translation>
    </message>
    <message>
        <source>a section name without its closing &quot;]&quot;</source>
        <translation>ein Abschnittsname ohne schließendes „]“</translation>
    </message>
    <message>
        <source>neither a [section] nor a NAME=VALUE line</source>
        <translation>weder ein [Abschnitt] noch eine Zeile NAME=WERT</translation>
    </message>
    <message>
        <source>%1: line %2: the file ends without a [%3] section of pieces</source>
        <translation>%1: Zeile %2: die Datei endet ohne einen Abschnitt [%3] mit Vorlagen</translation>
    </message>
    <message>
        <source>column %1: the text is not UTF-8 (a spreadsheet&apos;s &quot;CSV&quot; in a legacy code page?); save the file as &quot;CSV UTF-8&quot;</source>
        <translation>Spalte %1: der Text ist kein UTF-8 (eine „CSV“ einer Tabellenkalkulation in einer alten Codepage?); speichern Sie die Datei als „CSV UTF-8“</translation>
    </message>
    <message>
        <source>column %1: a quoted field that began on line %2 is never closed; add the closing double quote</source>
        <translation>Spalte %1: ein in Zeile %2 begonnenes Feld in Anführungszeichen wird nie geschlossen; ergänzen Sie das schließende Anführungszeichen</translation>
    </message>
    <message>
        <source>column %1: text after the closing quote of a quoted field; put the whole value in quotes and double any quote inside it</source>
        <translation>Spalte %1: Text nach dem schließenden Anführungszeichen eines Feldes; setzen Sie den ganzen Wert in Anführungszeichen und verdoppeln Sie jedes Anführungszeichen darin</translation>
    </message>
    <message>
        <source>column %1: a field longer than %2 bytes; is this a CSV file?</source>
        <translation>Spalte %1: ein Feld länger als %2 Bytes; ist das eine CSV-Datei?</translation>
    </message>
    <message>
        <source>quirra %1: the catalogue is damaged: %2. Reinstall it, or set QUIRRA_SYSTEM_DIR to the folder of a complete one.</source>
        <translation>quirra %1: der Katalog ist beschädigt: %2. Installieren Sie ihn neu oder setzen Sie QUIRRA_SYSTEM_DIR auf den Ordner eines vollständigen Katalogs.</translation>
    </message>
    <message>
        <source>quirra %1: %2
Run &apos;quirra %1 --help&apos; for its options.</source>
        <translation>quirra %1: %2
&apos;quirra %1 --help&apos; zeigt die Optionen.</translation>
    </message>
    <message>
        <source>Usage: quirra %1</source>
        <translation>Aufruf: quirra %1</translation>
    </message>
    <message>
        <source>reading</source>
        <extracomment>The progress bar&apos;s stage while the CSV file is read</extracomment>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 Datensätze</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;; %2; --pdf OUT.pdf writes a PDF file instead</source>
        <translation>es gibt keinen Drucker namens „%1“; %2; --pdf AUSGABE.pdf schreibt stattdessen eine PDF-Datei</translation>
    </message>
    <message>
        <source>no printer is set up here</source>
        <translation>hier ist kein Drucker eingerichtet</translation>
    </message>
    <message>
        <source>the printers are: </source>
        <translation>die Drucker sind: </translation>
    </message>
    <message>
        <source>no default printer is set up; name one with --printer NAME, or write a PDF file with --pdf OUT.pdf</source>
        <translation>kein Standarddrucker eingerichtet; nennen Sie einen mit --printer NAME oder schreiben Sie eine PDF-Datei mit --pdf AUSGABE.pdf</translation>
    </message>
    <message>
        <source>Prints the addresses of a CSV file (a header row, then one recipient a row) on the chosen piece, or writes them to a PDF file.</source>
        <translation>Druckt die Adressen einer CSV-Datei (eine Kopfzeile, dann ein Empfänger je Zeile) auf die gewählte Vorlage oder schreibt sie in eine PDF-Datei.</translation>
    </message>
    <message>
        <source>quirra print: interrupted while reading; nothing was printed</source>
        <translation>quirra print: beim Lesen unterbrochen; nichts wurde gedruckt</translation>
    </message>
    <message>
        <source>quirra print: %1 (%2 cannot be written)</source>
        <translation>quirra print: %1 (%2: Schreiben nicht möglich)</translation>
    </message>
    <message>
        <source>the printer </source>
        <translation>Drucker </translation>
    </message>
    <message>
        <source>quirra print: %1; nothing was printed</source>
        <translation>quirra print: %1; nichts wurde gedruckt</translation>
    </message>
    <message>
        <source>page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>printing</source>
        <extracomment>The progress bar&apos;s stage while the pages are printed</extracomment>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>quirra print: interrupted; nothing was printed</source>
        <translation>quirra print: unterbrochen; nichts wurde gedruckt</translation>
    </message>
    <message>
        <source>printer </source>
        <translation>Drucker </translation>
    </message>
    <message>
        <source>quirra print: %1 %2, %3 %4 on &quot;%5&quot; -&gt; %6</source>
        <translation>quirra print: %1 %2, %3 %4 auf „%5“ -&gt; %6</translation>
    </message>
    <message>
        <source>record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>records</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Shows the addresses of a CSV file on the chosen piece in a window, to page through, print, export as PDF or save the layout.</source>
        <translation>Zeigt die Adressen einer CSV-Datei auf der gewählten Vorlage in einem Fenster, zum Durchblättern, Drucken, Exportieren als PDF oder Speichern des Layouts.</translation>
    </message>
    <message>
        <source>quirra preview: there is no display to show the window on (%1); quirra print --pdf OUT.pdf writes the pages to a file instead</source>
        <translation>quirra preview: kein Bildschirm, auf dem das Fenster erscheinen kann (%1); quirra print --pdf AUSGABE.pdf schreibt die Seiten stattdessen in eine Datei</translation>
    </message>
    <message>
        <source>DISPLAY is not set</source>
        <translation>DISPLAY ist nicht gesetzt</translation>
    </message>
    <message>
        <source>cannot open display %1</source>
        <translation>Bildschirm %1 lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>quirra preview: stopped at page %1 (cancelled); the pages built so far are shown</source>
        <translation>quirra preview: bei Seite %1 angehalten (abgebrochen); die bisher erstellten Seiten werden gezeigt</translation>
    </message>
    <message>
        <source>Lists the catalogue&apos;s envelopes and labels: family, product, piece, size, layout, paper.</source>
        <translation>Listet die Umschläge und Etiketten des Katalogs auf: Familie, Produkt, Vorlage, Größe, Anordnung, Papier.</translation>
    </message>
    <message>
        <source>Only the pieces of this product.</source>
        <translation>Nur die Vorlagen dieses Produkts.</translation>
    </message>
    <message>
        <source>Only the pieces whose name, brand, part or product holds every word of the text.</source>
        <translation>Nur die Vorlagen, deren Name, Marke, Teilenummer oder Produkt jedes Wort des Textes enthält.</translation>
    </message>
    <message>
        <source>Only the imported products of this brand.</source>
        <translation>Nur die importierten Produkte dieser Marke.</translation>
    </message>
    <message>
        <source>quirra pieces: unexpected argument %1</source>
        <translation>quirra pieces: unerwartetes Argument %1</translation>
    </message>
    <message>
        <source>quirra pieces: no catalogue (quirra.cfg) in %1; set QUIRRA_SYSTEM_DIR to the folder that holds it</source>
        <translation>quirra pieces: kein Katalog (quirra.cfg) in %1; setzen Sie QUIRRA_SYSTEM_DIR auf den Ordner, der ihn enthält</translation>
    </message>
    <message>
        <source>quirra pieces: no piece matches; &apos;quirra pieces&apos; lists them all</source>
        <translation>quirra pieces: keine Vorlage passt; &apos;quirra pieces&apos; listet alle auf</translation>
    </message>
    <message>
        <source>quirra pieces: the catalogue %1 lists no pieces; is it a catalogue file? Set QUIRRA_SYSTEM_DIR to the folder of a complete one</source>
        <translation>quirra pieces: der Katalog %1 enthält keine Vorlagen; ist das eine Katalogdatei? Setzen Sie QUIRRA_SYSTEM_DIR auf den Ordner eines vollständigen Katalogs</translation>
    </message>
    <message>
        <source>quirra: unknown command &quot;%1&quot;</source>
        <translation>quirra: unbekannter Befehl „%1“</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>ein Ordner</translation>
    </message>
    <message>
        <source>a named pipe (FIFO)</source>
        <translation>eine benannte Pipe (FIFO)</translation>
    </message>
    <message>
        <source>a device</source>
        <translation>ein Gerät</translation>
    </message>
    <message>
        <source>a socket</source>
        <translation>ein Socket</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine reguläre Datei</translation>
    </message>
    <message>
        <source>the PDF needs a file name</source>
        <translation>die PDF-Datei braucht einen Dateinamen</translation>
    </message>
    <message>
        <source>%1 is a loop of symbolic links</source>
        <translation>%1 ist eine Schleife symbolischer Links</translation>
    </message>
    <message>
        <source>%1 is %2; --pdf needs the name of a regular file or of a new one</source>
        <translation>%1 ist %2; --pdf braucht den Namen einer regulären oder einer neuen Datei</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the folder %1 does not exist; create it first</source>
        <translation>der Ordner %1 existiert nicht; legen Sie ihn zuerst an</translation>
    </message>
    <message>
        <source>cannot write in the folder %1: %2</source>
        <translation>im Ordner %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the disk is full (no space left in %1); free some room and run again</source>
        <translation>der Datenträger ist voll (kein Platz mehr in %1); schaffen Sie Platz und starten Sie erneut</translation>
    </message>
    <message>
        <source>a write failed (an input/output error or a disk quota); check the disk and run again</source>
        <translation>ein Schreibvorgang ist fehlgeschlagen (ein Ein-/Ausgabefehler oder ein Speicherkontingent); prüfen Sie den Datenträger und starten Sie erneut</translation>
    </message>
    <message>
        <source>no PDF was started</source>
        <translation>keine PDF-Datei wurde begonnen</translation>
    </message>
    <message>
        <source>the file there is as it was</source>
        <translation>die vorhandene Datei ist unverändert</translation>
    </message>
    <message>
        <source>no file was made</source>
        <translation>keine Datei wurde angelegt</translation>
    </message>
    <message>
        <source>%1 was not written: %2; %3</source>
        <translation>%1 wurde nicht geschrieben: %2; %3</translation>
    </message>
    <message>
        <source>no page was written</source>
        <translation>keine Seite wurde geschrieben</translation>
    </message>
    <message>
        <source>the file came out incomplete: </source>
        <translation>die Datei ist unvollständig: </translation>
    </message>
    <message>
        <source>… (%1 characters)</source>
        <translation>… (%1 Zeichen)</translation>
    </message>
    <message>
        <source>1 record</source>
        <translation>1 Datensatz</translation>
    </message>
    <message>
        <source>1 record needs a look:</source>
        <translation>1 Datensatz sollte nachgesehen werden:</translation>
    </message>
    <message>
        <source>%1 records need a look:</source>
        <translation>%1 Datensätze sollten nachgesehen werden:</translation>
    </message>
    <message>
        <source> (and 1 more record)</source>
        <translation> (und 1 weiterer Datensatz)</translation>
    </message>
    <message>
        <source> (and %1 more records)</source>
        <translation> (und %1 weitere Datensätze)</translation>
    </message>
    <message>
        <source>Check every record first; when any needs a look (a city line cut or left out, text cut off, a piece off the page ...), say so and exit with status 3 without printing or writing anything.</source>
        <translation>Zuerst jeden Datensatz prüfen; sollte einer nachgesehen werden (Ortszeile gekürzt oder ausgelassen, Text abgeschnitten, ein Stück außerhalb der Seite ...), dies melden und mit Status 3 enden, ohne etwas zu drucken oder zu schreiben.</translation>
    </message>
    <message>
        <source>quirra %1: nothing was printed (--strict); correct the records or the layout, or leave out --strict to print as it is</source>
        <translation>quirra %1: nichts wurde gedruckt (--strict); korrigieren Sie die Datensätze oder das Layout, oder lassen Sie --strict weg, um so zu drucken</translation>
    </message>
    <message>
        <source>Checks the addresses of a CSV file on the chosen piece as print would print them, and tells which records need a look; prints nothing. Exit status 0: all clean, 3: some records need a look.</source>
        <translation>Prüft die Adressen einer CSV-Datei auf der gewählten Vorlage so, wie print sie drucken würde, und nennt die Datensätze, die nachgesehen werden sollten; druckt nichts. Exit-Status 0: alles in Ordnung, 3: einige Datensätze sollten nachgesehen werden.</translation>
    </message>
    <message>
        <source>quirra check: %1 on &quot;%2&quot;: nothing to note</source>
        <translation>quirra check: %1 auf „%2“: nichts zu beanstanden</translation>
    </message>
    <message>
        <source>--set %1: write it as NAME=VALUE, e.g. --set AddressHorzAlign=haCenter</source>
        <translation>--set %1: schreiben Sie NAME=WERT, z. B. --set AddressHorzAlign=haCenter</translation>
    </message>
    <message>
        <source>--set %1: the property&apos;s name is missing before &apos;=&apos;</source>
        <translation>--set %1: vor &apos;=&apos; fehlt der Name der Eigenschaft</translation>
    </message>
    <message>
        <source>one of %1, by name or number</source>
        <translation>einen von %1, als Name oder Zahl</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a number with a full stop as decimal point, e.g. 0.25 (inches for lengths)</source>
        <translation>eine Zahl mit Punkt als Dezimaltrennzeichen, z. B. 0.25 (Längen in Zoll)</translation>
    </message>
    <message>
        <source>true or false (or 1 or 0)</source>
        <translation>true oder false (oder 1 oder 0)</translation>
    </message>
    <message>
        <source>text; \n starts a new line</source>
        <translation>Text; \n beginnt eine neue Zeile</translation>
    </message>
    <message>
        <source>a font as family and point size, e.g. &quot;Liberation Serif,12&quot;, or a full QFont::toString() text</source>
        <translation>eine Schrift als Familie und Punktgröße, z. B. „Liberation Serif,12“, oder ein vollständiger QFont::toString()-Text</translation>
    </message>
    <message>
        <source>a value of type %1, which cannot be given on the command line</source>
        <translation>einen Wert vom Typ %1, der sich auf der Befehlszeile nicht angeben lässt</translation>
    </message>
    <message>
        <source>--set %1: the control has no property &quot;%1&quot;</source>
        <translation>--set %1: das Steuerelement hat keine Eigenschaft „%1“</translation>
    </message>
    <message>
        <source>; did you mean %1?</source>
        <translation>; meinten Sie %1?</translation>
    </message>
    <message>
        <source>--set %1: the property cannot be set</source>
        <translation>--set %1: die Eigenschaft lässt sich nicht setzen</translation>
    </message>
    <message>
        <source>--set %1=%2: %1 takes %3</source>
        <translation>--set %1=%2: %1 nimmt %3</translation>
    </message>
    <message>
        <source>--set %1=%2: the control did not take the value; %1 takes %3</source>
        <translation>--set %1=%2: das Steuerelement hat den Wert nicht übernommen; %1 nimmt %3</translation>
    </message>
    <message>
        <source>--set %1: no font family &quot;%2&quot; is installed; the closest one is used</source>
        <translation>--set %1: keine Schriftfamilie „%2“ installiert; die nächstliegende wird verwendet</translation>
    </message>
    <message>
        <source>no CSV file given and standard input is a terminal; name a file or pipe one in</source>
        <translation>keine CSV-Datei angegeben und die Standardeingabe ist ein Terminal; nennen Sie eine Datei oder leiten Sie eine herein</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>cannot read standard input: %1</source>
        <translation>die Standardeingabe kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>%1: is a folder; name the CSV file</source>
        <translation>%1: ist ein Ordner; nennen Sie die CSV-Datei</translation>
    </message>
    <message>
        <source>%1: cannot read the file: %2</source>
        <translation>%1: die Datei kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1: the file is empty; it needs a header row naming its columns: %2</source>
        <translation>%1: die Datei ist leer; sie braucht eine Kopfzeile, die ihre Spalten benennt: %2</translation>
    </message>
    <message>
        <source>%1: no column is named &quot;%2&quot; (--copies-column); the columns are %3</source>
        <translation>%1: keine Spalte heißt „%2“ (--copies-column); die Spalten sind %3</translation>
    </message>
    <message>
        <source>%1: line %2: the copies column &quot;%3&quot; holds &quot;%4&quot;; give a whole number, 0 to %5</source>
        <translation>%1: Zeile %2: die Kopienspalte „%3“ enthält „%4“; geben Sie eine ganze Zahl von 0 bis %5 an</translation>
    </message>
    <message>
        <source>%1: stopped after %2 records</source>
        <translation>%1: nach %2 Datensätzen angehalten</translation>
    </message>
    <message>
        <source>%1: no records after the header row; nothing to print</source>
        <translation>%1: keine Datensätze nach der Kopfzeile; nichts zu drucken</translation>
    </message>
    <message>
        <source>there is no catalogue (quirra.cfg) in %1 to find the piece &quot;%2&quot; in; set QUIRRA_SYSTEM_DIR to the folder that holds it</source>
        <translation>in %1 gibt es keinen Katalog (quirra.cfg), in dem die Vorlage „%2“ zu finden wäre; setzen Sie QUIRRA_SYSTEM_DIR auf den Ordner, der ihn enthält</translation>
    </message>
    <message>
        <source>the catalogue has no piece &quot;%1&quot;</source>
        <translation>der Katalog hat keine Vorlage „%1“</translation>
    </message>
    <message>
        <source> (quirra pieces lists them all)</source>
        <translation> (quirra pieces listet alle auf)</translation>
    </message>
    <message>
        <source>The CSV file (UTF-8, a header row naming the columns); - or nothing reads standard input.</source>
        <translation>Die CSV-Datei (UTF-8, eine Kopfzeile benennt die Spalten); - oder nichts liest die Standardeingabe.</translation>
    </message>
    <message>
        <source>The catalogue piece to print on (see quirra pieces); default &quot;%1&quot;.</source>
        <translation>Die Katalogvorlage, auf die gedruckt wird (siehe quirra pieces); Vorgabe „%1“.</translation>
    </message>
    <message>
        <source>A saved layout (JSON, as quirra preview saves it), read before --piece and --set.</source>
        <translation>Ein gespeichertes Layout (JSON, wie quirra preview es speichert), gelesen vor --piece und --set.</translation>
    </message>
    <message>
        <source>Sets a property of the control by its name, e.g. ReturnText=&quot;ACME Mail\n1 Main St&quot;, AddressHorzAlign=haCenter, AddressFont=&quot;Liberation Serif,12&quot;; applied in order after --layout and --piece. May be repeated.</source>
        <translation>Setzt eine Eigenschaft des Steuerelements über ihren Namen, z. B. ReturnText=&quot;ACME Mail\n1 Main St&quot;, AddressHorzAlign=haCenter, AddressFont=&quot;Liberation Serif,12&quot;; der Reihe nach nach --layout und --piece angewandt. Darf wiederholt werden.</translation>
    </message>
    <message>
        <source>Write the pages to this PDF file instead of printing.</source>
        <translation>Die Seiten in diese PDF-Datei schreiben, statt zu drucken.</translation>
    </message>
    <message>
        <source>Print only these pages: 3-5, 4 or 2- (to the end).</source>
        <translation>Nur diese Seiten drucken: 3-5, 4 oder 2- (bis zum Ende).</translation>
    </message>
    <message>
        <source>Print on this printer (default: the system&apos;s default printer).</source>
        <translation>Auf diesem Drucker drucken (Vorgabe: der Standarddrucker des Systems).</translation>
    </message>
    <message>
        <source>Start on slot N of the first sheet (slots numbered row by row from 1), to use up a sheet already used.</source>
        <translation>Auf Platz N des ersten Blatts beginnen (Plätze reihenweise ab 1 gezählt), um ein angebrochenes Blatt aufzubrauchen.</translation>
    </message>
    <message>
        <source>Draw each piece&apos;s outline, thin and grey, to check the alignment on plain paper.</source>
        <translation>Den Umriss jedes Stücks dünn und grau zeichnen, um die Ausrichtung auf Normalpapier zu prüfen.</translation>
    </message>
    <message>
        <source>The column holding how many pieces of each record to print (a whole number, 0 or more).</source>
        <translation>Die Spalte, die angibt, wie viele Stücke je Datensatz gedruckt werden (eine ganze Zahl, 0 oder mehr).</translation>
    </message>
    <message>
        <source>Draw a progress bar on standard error (the default when it is a terminal).</source>
        <translation>Einen Fortschrittsbalken auf die Standardfehlerausgabe zeichnen (Vorgabe, wenn sie ein Terminal ist).</translation>
    </message>
    <message>
        <source>Draw no progress bar.</source>
        <translation>Keinen Fortschrittsbalken zeichnen.</translation>
    </message>
    <message>
        <source>give one CSV file, not %1 (%2)</source>
        <translation>geben Sie eine CSV-Datei an, nicht %1 (%2)</translation>
    </message>
    <message>
        <source>the CSV file name is empty</source>
        <translation>der Name der CSV-Datei ist leer</translation>
    </message>
    <message>
        <source>--piece needs a name (see quirra pieces)</source>
        <translation>--piece braucht einen Namen (siehe quirra pieces)</translation>
    </message>
    <message>
        <source>--pdf needs a file name</source>
        <translation>--pdf braucht einen Dateinamen</translation>
    </message>
    <message>
        <source>--printer needs a printer&apos;s name</source>
        <translation>--printer braucht den Namen eines Druckers</translation>
    </message>
    <message>
        <source>give either --pdf or --printer, not both</source>
        <translation>geben Sie entweder --pdf oder --printer an, nicht beide</translation>
    </message>
    <message>
        <source>--start %1: give the slot as a whole number from 1</source>
        <translation>--start %1: geben Sie den Platz als ganze Zahl ab 1 an</translation>
    </message>
    <message>
        <source>--pages %1: give a page or a range of pages from 1, as 3-5, 4 or 2-</source>
        <translation>--pages %1: geben Sie eine Seite oder einen Seitenbereich ab 1 an, etwa 3-5, 4 oder 2-</translation>
    </message>
    <message>
        <source>--copies-column needs a column&apos;s name</source>
        <translation>--copies-column braucht den Namen einer Spalte</translation>
    </message>
    <message>
        <source>give either --progress or --no-progress, not both</source>
        <translation>geben Sie entweder --progress oder --no-progress an, nicht beide</translation>
    </message>
    <message>
        <source>--start %1: the sheet of &quot;%2&quot; has %3 slots; give 1 to %3</source>
        <translation>--start %1: das Blatt von „%2“ hat %3 Plätze; geben Sie 1 bis %3 an</translation>
    </message>
    <message>
        <source>%1 is %2 characters long; a text may have at most %3</source>
        <translation>%1 ist %2 Zeichen lang; ein Text darf höchstens %3 haben</translation>
    </message>
    <message>
        <source>%1 is %2 %; the printer&apos;s scale is from 90 to 110 %</source>
        <translation>%1 ist %2 %; der Maßstab des Druckers liegt zwischen 90 und 110 %</translation>
    </message>
    <message>
        <source>%1 is %2 in; a length on a sheet is from 0 to %3 in</source>
        <translation>%1 ist %2 Zoll; eine Länge auf einem Blatt liegt zwischen 0 und %3 Zoll</translation>
    </message>
    <message>
        <source>name</source>
        <comment>an option&apos;s value in the help</comment>
        <translation>Name</translation>
    </message>
    <message>
        <source>property=value</source>
        <comment>an option&apos;s value in the help</comment>
        <translation>Eigenschaft=Wert</translation>
    </message>
    <message>
        <source>file</source>
        <comment>an option&apos;s value in the help</comment>
        <translation>Datei</translation>
    </message>
    <message>
        <source>l,t,r,b</source>
        <comment>an option&apos;s value in the help</comment>
        <translation>l,o,r,u</translation>
    </message>
    <message>
        <source>text</source>
        <comment>an option&apos;s value in the help</comment>
        <translation>Text</translation>
    </message>
    <message>
        <source>range</source>
        <comment>an option&apos;s value in the help</comment>
        <translation>Bereich</translation>
    </message>
</context>
<context>
    <name>quirra::AboutBox</name>
    <message>
        <source>About QuirraControl</source>
        <translation>Über QuirraControl</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Envelope and label printing for Qt applications: a control that lays name and address records out on envelopes and label sheets, previews them and prints them.</source>
        <translation>Umschlag- und Etikettendruck für Qt-Anwendungen: ein Steuerelement, das Namen und Adressen auf Umschläge und Etikettenbögen setzt, sie in der Vorschau zeigt und druckt.</translation>
    </message>
    <message>
        <source>Written by the QuirraControl developers and released under the MIT licence.

Built on Qt, the cross-platform application framework, used under the GNU LGPL version 3.

Previews, PDF files and tests are set in the Liberation fonts (SIL Open Font Licence) and the DejaVu fonts (a free font licence).

The envelope and label catalogue was gathered from an open template database of a free label designer (MIT-style licence, copyright 2001-2009 its author), the nominal sizes and pitches label makers print on their packs, a free Perl library of paper and label sizes, and the published North American and ISO 269 / DIN 678 envelope size tables. Where they disagree, the catalogue&apos;s notes say which figure was kept.</source>
        <translation>Geschrieben von den QuirraControl-Entwicklern und unter der MIT-Lizenz veröffentlicht.

Aufgebaut auf Qt, dem plattformübergreifenden Anwendungsframework, genutzt unter der GNU LGPL Version 3.

Vorschauen, PDF-Dateien und Tests sind in den Liberation-Schriften (SIL Open Font Licence) und den DejaVu-Schriften (eine freie Schriftlizenz) gesetzt.

Der Umschlag- und Etikettenkatalog wurde zusammengetragen aus einer offenen Vorlagendatenbank eines freien Etikettenprogramms (Lizenz im MIT-Stil, Copyright 2001-2009 sein Autor), den Nenngrößen und Abständen, die Etikettenhersteller auf ihre Packungen drucken, einer freien Perl-Bibliothek mit Papier- und Etikettengrößen sowie den veröffentlichten nordamerikanischen Umschlagtabellen und denen nach ISO 269 / DIN 678. Wo sie voneinander abweichen, sagen die Anmerkungen des Katalogs, welcher Wert übernommen wurde.</translation>
    </message>
</context>
<context>
    <name>quirra::CalibrationFields</name>
    <message>
        <source>Left offset</source>
        <translation>Versatz links</translation>
    </message>
    <message>
        <source>Top offset</source>
        <translation>Versatz oben</translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation>Maßstab waagerecht</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>Maßstab senkrecht</translation>
    </message>
    <message>
        <source>Printer calibration</source>
        <translation>Druckerkalibrierung</translation>
    </message>
    <message>
        <source>%1, from %2 to %3 %4 (the property %5)</source>
        <translation>%1, von %2 bis %3 %4 (die Eigenschaft %5)</translation>
    </message>
    <message>
        <source>%1 (%2):</source>
        <translation>%1 (%2):</translation>
    </message>
    <message>
        <source>%1 goes from %2 to %3 %4; it stays %5 %4.</source>
        <translation>%1 reicht von %2 bis %3 %4; der Wert bleibt %5 %4.</translation>
    </message>
    <message>
        <source>%1 %2 is out of range: %3</source>
        <translation>%1 %2 liegt außerhalb des Bereichs: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number: %2</source>
        <translation>„%1“ ist keine Zahl: %2</translation>
    </message>
</context>
<context>
    <name>quirra::ItemLayout</name>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Click to pick the item, double-click to edit the layout</source>
        <translation>Klicken wählt das Element, Doppelklicken bearbeitet das Layout</translation>
    </message>
    <message>
        <source>Choose another piece from the catalogue</source>
        <translation>Eine andere Vorlage aus dem Katalog wählen</translation>
    </message>
    <message>
        <source>Height = 2.3</source>
        <translation>Höhe = 2.3</translation>
    </message>
    <message>
        <source>Width = 3.4</source>
        <translation>Breite = 3.4</translation>
    </message>
    <message>
        <source>Piece Layout</source>
        <translation>Layout der Vorlage</translation>
    </message>
    <message>
        <source>Piece Customization</source>
        <translation>Vorlage anpassen</translation>
    </message>
    <message>
        <source>Height = </source>
        <translation>Höhe = </translation>
    </message>
    <message>
        <source>Width = </source>
        <translation>Breite = </translation>
    </message>
    <message>
        <source>Top = </source>
        <translation>Oben = </translation>
    </message>
    <message>
        <source>Left = </source>
        <translation>Links = </translation>
    </message>
</context>
<context>
    <name>quirra::PreviewPane</name>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Print the page on show</source>
        <translation>Die angezeigte Seite drucken</translation>
    </message>
    <message>
        <source>Pr Pg</source>
        <extracomment>Short caption of the button that prints the page on show (&quot;print page&quot;)</extracomment>
        <translation>Dr. S.</translation>
    </message>
    <message>
        <source>Pr All</source>
        <extracomment>Short caption of the button that prints every page</extracomment>
        <translation>Dr. alle</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Print the page on show: choose the printer and the copies first</source>
        <translation>Die angezeigte Seite drucken: zuerst Drucker und Exemplare wählen</translation>
    </message>
    <message>
        <source>Print the page on show on the printer</source>
        <translation>Die angezeigte Seite auf dem Drucker drucken</translation>
    </message>
    <message>
        <source>Print the whole run: choose the printer, the copies and the pages first</source>
        <translation>Die ganze Druckserie drucken: zuerst Drucker, Exemplare und Seiten wählen</translation>
    </message>
    <message>
        <source>Print the whole run, every page, on the printer</source>
        <translation>Die ganze Druckserie, jede Seite, auf dem Drucker drucken</translation>
    </message>
    <message>
        <source>Print the run</source>
        <translation>Druckserie drucken</translation>
    </message>
</context>
<context>
    <name>quirra::PreviewWindow</name>
    <message>
        <source>Run</source>
        <translation>Druckserie</translation>
    </message>
    <message>
        <source>Save layout…</source>
        <translation>Layout speichern …</translation>
    </message>
    <message>
        <source>Piece…</source>
        <translation>Vorlage …</translation>
    </message>
    <message>
        <source>Customize…</source>
        <translation>Anpassen …</translation>
    </message>
    <message>
        <source>Layout…</source>
        <translation>Layout …</translation>
    </message>
    <message>
        <source>Properties…</source>
        <translation>Eigenschaften …</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken …</translation>
    </message>
    <message>
        <source>Export PDF…</source>
        <translation>PDF exportieren …</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>quirra - %1 on %2</source>
        <translation>quirra - %1 auf %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop building the preview (Esc)</source>
        <translation>Erstellen der Vorschau anhalten (Esc)</translation>
    </message>
    <message>
        <source>Preview cancelled: the pages built so far are shown</source>
        <translation>Vorschau abgebrochen: die bisher erstellten Seiten werden gezeigt</translation>
    </message>
    <message>
        <source>Save layout</source>
        <translation>Layout speichern</translation>
    </message>
    <message>
        <source>Layouts (*.json);;All files (*)</source>
        <translation>Layouts (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The layout could not be saved: %1</source>
        <translation>Das Layout konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Layout saved to %1</source>
        <translation>Layout in %1 gespeichert</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>Print the run</source>
        <translation>Druckserie drucken</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Das Drucken</translation>
    </message>
    <message>
        <source>Sent %1 pages to the printer</source>
        <translation>%1 Seiten an den Drucker gesendet</translation>
    </message>
    <message>
        <source>Export PDF</source>
        <translation>PDF exportieren</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>The PDF could not be written: %1</source>
        <translation>Die PDF-Datei konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The export</source>
        <translation>Der Export</translation>
    </message>
    <message>
        <source>Wrote %1 pages to %2</source>
        <translation>%1 Seiten in %2 geschrieben</translation>
    </message>
    <message>
        <source>Zoom of the page on show, in percent (also Ctrl+wheel, Ctrl+plus and Ctrl+minus on the page)</source>
        <translation>Zoom der angezeigten Seite in Prozent (auch Strg+Mausrad, Strg+Plus und Strg+Minus auf der Seite)</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>quirra::PropertySheet</name>
    <message>
        <source>Quirra Properties[*]</source>
        <translation>Quirra-Eigenschaften[*]</translation>
    </message>
</context>
<context>
    <name>quirra::SheetDrawing</name>
    <message>
        <source>pitch %1</source>
        <translation>Abstand %1</translation>
    </message>
</context>
<context>
    <name>quirra::SheetPreview</name>
    <message>
        <source>Sheet preview</source>
        <translation>Blattvorschau</translation>
    </message>
    <message>
        <source>No page to show</source>
        <translation>Keine Seite anzuzeigen</translation>
    </message>
</context>
<context>
    <name>quirra::piece_customization_form</name>
    <message>
        <source>Margin</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Oben:</translation>
    </message>
    <message>
        <source>&amp;Side:</source>
        <translation>&amp;Links:</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>&amp;Vertical:</source>
        <translation>&amp;Vertikal:</translation>
    </message>
    <message>
        <source>&amp;Horizontal:</source>
        <translation>Hori&amp;zontal:</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>H&amp;eight:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Anzahl:</translation>
    </message>
    <message>
        <source>&amp;Across:</source>
        <translation>&amp;Spalten:</translation>
    </message>
    <message>
        <source>&amp;Down:</source>
        <translation>&amp;Reihen:</translation>
    </message>
    <message>
        <source>Piece Customization</source>
        <translation>Vorlage anpassen</translation>
    </message>
    <message>
        <source>&amp;Piece Name:</source>
        <translation>Vorlagen&amp;name:</translation>
    </message>
    <message>
        <source>&amp;Page size:</source>
        <translation>Seiten&amp;format:</translation>
    </message>
    <message>
        <source>Units are in :</source>
        <translation>Einheit:</translation>
    </message>
    <message>
        <source>Custom piece</source>
        <translation>Eigene Vorlage</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>O&amp;k</source>
        <translation>O&amp;K</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>centimeters</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Letter (8 ½ x 11 in)</source>
        <translation>Letter (8 ½ x 11 Zoll)</translation>
    </message>
    <message>
        <source>Letter landscape (11 x 8 ½ in)</source>
        <translation>Letter quer (11 x 8 ½ Zoll)</translation>
    </message>
    <message>
        <source>A4 (21 x 29.7 cm)</source>
        <translation>A4 (21 x 29,7 cm)</translation>
    </message>
    <message>
        <source>A4 landscape (29.7 x 21 cm)</source>
        <translation>A4 quer (29,7 x 21 cm)</translation>
    </message>
    <message>
        <source>A5 (14.8 x 21 cm)</source>
        <translation>A5 (14,8 x 21 cm)</translation>
    </message>
    <message>
        <source>A5 landscape (21 x 14.8 cm)</source>
        <translation>A5 quer (21 x 14,8 cm)</translation>
    </message>
    <message>
        <source>B5 (18.2 x 25.7 cm)</source>
        <translation>B5 (18,2 x 25,7 cm)</translation>
    </message>
    <message>
        <source>Mini (4 ¼ x 5 in)</source>
        <translation>Mini (4 ¼ x 5 Zoll)</translation>
    </message>
</context>
<context>
    <name>quirra::piece_layout_edit_form</name>
    <message>
        <source>Delivery Address</source>
        <translation>Empfängeradresse</translation>
    </message>
    <message>
        <source>Return Address</source>
        <translation>Absenderadresse</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Briefmarke</translation>
    </message>
    <message>
        <source>Message 1</source>
        <translation>Mitteilung 1</translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation>Mitteilung 2</translation>
    </message>
    <message>
        <source>Delivery &amp;Address</source>
        <translation>&amp;Empfängeradresse</translation>
    </message>
    <message>
        <source>&amp;Return Address</source>
        <translation>&amp;Absenderadresse</translation>
    </message>
    <message>
        <source>&amp;Stamp</source>
        <translation>&amp;Briefmarke</translation>
    </message>
    <message>
        <source>Message &amp;1</source>
        <translation>Mitteilung &amp;1</translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation>Mitteilung &amp;2</translation>
    </message>
    <message>
        <source>&amp;Left Justify</source>
        <translation>&amp;Linksbündig</translation>
    </message>
    <message>
        <source>&amp;Center Justify</source>
        <translation>&amp;Zentriert</translation>
    </message>
    <message>
        <source>&amp;Right Justify</source>
        <translation>&amp;Rechtsbündig</translation>
    </message>
    <message>
        <source>&amp;Full Justify</source>
        <translation>&amp;Blocksatz</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Oben:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Links:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Piece Layout</source>
        <translation>Layout der Vorlage</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation>&amp;Ändern</translation>
    </message>
    <message>
        <source>&amp;Bring To Front</source>
        <translation>In den &amp;Vordergrund</translation>
    </message>
    <message>
        <source>Se&amp;nd To Back</source>
        <translation>In den &amp;Hintergrund</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>Menu command: puts every item back where the piece&apos;s default layout has it</extracomment>
        <translation>Standard</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation>&amp;Schrift</translation>
    </message>
    <message>
        <source>Borders</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <translation>&amp;Anzeige</translation>
    </message>
</context>
<context>
    <name>quirra::piece_select_form</name>
    <message>
        <source>Piece Selection</source>
        <translation>Vorlagenauswahl</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papier:</translation>
    </message>
    <message>
        <source>Cut &amp;Sheet</source>
        <translation>&amp;Einzelblatt</translation>
    </message>
    <message>
        <source>Con&amp;tinuous</source>
        <translation>Endl&amp;ospapier</translation>
    </message>
    <message>
        <source>Pro&amp;duct:</source>
        <translation>&amp;Produkt:</translation>
    </message>
    <message>
        <source>&amp;Piece:</source>
        <translation>&amp;Vorlage:</translation>
    </message>
    <message>
        <source>Search part, brand or product</source>
        <translation>Teil, Marke, Produkt suchen</translation>
    </message>
    <message>
        <source>Info:</source>
        <translation>Info:</translation>
    </message>
    <message>
        <source>Double-click to see the piece&apos;s details</source>
        <translation>Doppelklicken zeigt die Angaben zur Vorlage</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Page Size:</source>
        <translation>Seitenformat:</translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation>Anordnung:</translation>
    </message>
    <message>
        <source>Product:</source>
        <translation>Produkt:</translation>
    </message>
    <message>
        <source>O&amp;k</source>
        <translation>O&amp;K</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>&amp;New Piece</source>
        <translation>&amp;Neue Vorlage</translation>
    </message>
</context>
</TS>
