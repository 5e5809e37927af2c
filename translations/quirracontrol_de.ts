<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>quirra</name>
    <message>
        <source>holds a double quote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>holds a line break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>first, middle, last, address1, address2, city, state, zip (or nm_first, nm_middle, nm_last, addr_1, addr_2), bar_code (or barcode, imb), and substitute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the columns &quot;%1&quot; and &quot;%2&quot; both name the same field; rename or remove one of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>column %1: the name &quot;%2&quot; cannot be used as a substitution name (it holds ^, |, a quote or a line break); rename it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>columns %1 and %2 are both named &quot;%3&quot;; rename one of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the header row names no address column; name the columns %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the row has %1 fields but the header has %2; check for a missing or extra comma, or a value with a comma that needs double quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>column %1 (&quot;%2&quot;) %3, which a printed record cannot carry; remove it from the value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>column %1 (&quot;%2&quot;) holds a |, which separates substitution entries; remove it from the value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints a calibration sheet of a piece: each piece&apos;s outline and a cross at its centre, rulers along the top and left edges. Held over a real sheet, it tells how far off the printer puts things; --measured turns that reading into PrinterLeft, PrinterTop, PrinterScaleX and PrinterScaleY.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The catalogue piece (required).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <comment>an option&apos;s value in the help</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets a property first, e.g. the present PrinterLeft.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>property=value</source>
        <comment>an option&apos;s value in the help</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the sheet to this PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file</source>
        <comment>an option&apos;s value in the help</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the sheet on this printer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the crosses of the first and the last piece lie from the real pieces&apos; centres, inches, right and down positive: LEFT,TOP,RIGHT,BOTTOM.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>l,t,r,b</source>
        <comment>an option&apos;s value in the help</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name the piece with --piece (see quirra pieces)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no piece &quot;%1&quot; in the catalogue (see quirra pieces)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>give one of --pdf FILE, --printer NAME or --measured L,T,R,B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--measured %1: give four distances in inches, each within 1 in, as LEFT,TOP,RIGHT,BOTTOM (e.g. 0.03,-0.02,0.05,0.01)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra calibrate: the sheet of &quot;%1&quot; -&gt; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra calibrate: the sheet of &quot;%1&quot; -&gt; printer %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the piece record has %1 fields; it needs product, piece size, page size, margins, pitch, across x down and page description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>piece size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>margins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the %1 &quot;%2&quot; is not two numbers above 0 (&quot;W x H&quot;)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not across x down, each 1 or more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: line 1: the file is %2 MB, far too large for a catalogue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the line holds a NUL byte; this is no catalogue text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text is not UTF-8; this is no catalogue text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a section name without its closing &quot;]&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>neither a [section] nor a NAME=VALUE line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: line %2: the file ends without a [%3] section of pieces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>column %1: the text is not UTF-8 (a spreadsheet&apos;s &quot;CSV&quot; in a legacy code page?); save the file as &quot;CSV UTF-8&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>column %1: a quoted field that began on line %2 is never closed; add the closing double quote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>column %1: text after the closing quote of a quoted field; put the whole value in quotes and double any quote inside it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>column %1: a field longer than %2 bytes; is this a CSV file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra %1: the catalogue is damaged: %2. Reinstall it, or set QUIRRA_SYSTEM_DIR to the folder of a complete one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra %1: %2
Run &apos;quirra %1 --help&apos; for its options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: quirra %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;; %2; --pdf OUT.pdf writes a PDF file instead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no printer is set up here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the printers are: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no default printer is set up; name one with --printer NAME, or write a PDF file with --pdf OUT.pdf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints the addresses of a CSV file (a header row, then one recipient a row) on the chosen piece, or writes them to a PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra print: interrupted while reading; nothing was printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra print: %1 (%2 cannot be written)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the printer </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra print: %1; nothing was printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>printing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra print: interrupted; nothing was printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>printer </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra print: %1 %2, %3 %4 on &quot;%5&quot; -&gt; %6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the addresses of a CSV file on the chosen piece in a window, to page through, print, export as PDF or save the layout.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra preview: there is no display to show the window on (%1); quirra print --pdf OUT.pdf writes the pages to a file instead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DISPLAY is not set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot open display %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra preview: stopped at page %1 (cancelled); the pages built so far are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists the catalogue&apos;s envelopes and labels: family, product, piece, size, layout, paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the pieces of this product.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the pieces whose name, brand, part or product holds every word of the text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text</source>
        <comment>an option&apos;s value in the help</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the imported products of this brand.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra pieces: unexpected argument %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra pieces: no catalogue (quirra.cfg) in %1; set QUIRRA_SYSTEM_DIR to the folder that holds it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra pieces: no piece matches; &apos;quirra pieces&apos; lists them all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra pieces: the catalogue %1 lists no pieces; is it a catalogue file? Set QUIRRA_SYSTEM_DIR to the folder of a complete one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra: unknown command &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a named pipe (FIFO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a socket</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the PDF needs a file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a loop of symbolic links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2; --pdf needs the name of a regular file or of a new one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder %1 does not exist; create it first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot write in the folder %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk is full (no space left in %1); free some room and run again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a write failed (an input/output error or a disk quota); check the disk and run again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no PDF was started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file there is as it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no file was made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not written: %2; %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no page was written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file came out incomplete: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>… (%1 characters)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 record needs a look:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 records need a look:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (and 1 more record)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (and %1 more records)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check every record first; when any needs a look (a city line cut or left out, text cut off, a piece off the page ...), say so and exit with status 3 without printing or writing anything.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra %1: nothing was printed (--strict); correct the records or the layout, or leave out --strict to print as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checks the addresses of a CSV file on the chosen piece as print would print them, and tells which records need a look; prints nothing. Exit status 0: all clean, 3: some records need a look.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra check: %1 on &quot;%2&quot;: nothing to note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--set %1: write it as NAME=VALUE, e.g. --set AddressHorzAlign=haCenter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--set %1: the property&apos;s name is missing before &apos;=&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of %1, by name or number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number with a full stop as decimal point, e.g. 0.25 (inches for lengths)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>true or false (or 1 or 0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text; \n starts a new line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a font as family and point size, e.g. &quot;Liberation Serif,12&quot;, or a full QFont::toString() text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a value of type %1, which cannot be given on the command line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--set %1: the control has no property &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; did you mean %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--set %1: the property cannot be set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--set %1=%2: %1 takes %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--set %1=%2: the control did not take the value; %1 takes %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--set %1: no font family &quot;%2&quot; is installed; the closest one is used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no CSV file given and standard input is a terminal; name a file or pipe one in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read standard input: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: is a folder; name the CSV file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: cannot read the file: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the file is empty; it needs a header row naming its columns: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no column is named &quot;%2&quot; (--copies-column); the columns are %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: line %2: the copies column &quot;%3&quot; holds &quot;%4&quot;; give a whole number, 0 to %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: stopped after %2 records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no records after the header row; nothing to print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no catalogue (quirra.cfg) in %1 to find the piece &quot;%2&quot; in; set QUIRRA_SYSTEM_DIR to the folder that holds it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the catalogue has no piece &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (quirra pieces lists them all)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The CSV file (UTF-8, a header row naming the columns); - or nothing reads standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The catalogue piece to print on (see quirra pieces); default &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A saved layout (JSON, as quirra preview saves it), read before --piece and --set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets a property of the control by its name, e.g. ReturnText=&quot;ACME Mail\n1 Main St&quot;, AddressHorzAlign=haCenter, AddressFont=&quot;Liberation Serif,12&quot;; applied in order after --layout and --piece. May be repeated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the pages to this PDF file instead of printing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print only these pages: 3-5, 4 or 2- (to the end).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>range</source>
        <comment>an option&apos;s value in the help</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print on this printer (default: the system&apos;s default printer).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start on slot N of the first sheet (slots numbered row by row from 1), to use up a sheet already used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw each piece&apos;s outline, thin and grey, to check the alignment on plain paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The column holding how many pieces of each record to print (a whole number, 0 or more).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw a progress bar on standard error (the default when it is a terminal).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw no progress bar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>give one CSV file, not %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the CSV file name is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--piece needs a name (see quirra pieces)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--pdf needs a file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--printer needs a printer&apos;s name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>give either --pdf or --printer, not both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--start %1: give the slot as a whole number from 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--pages %1: give a page or a range of pages from 1, as 3-5, 4 or 2-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--copies-column needs a column&apos;s name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>give either --progress or --no-progress, not both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--start %1: the sheet of &quot;%2&quot; has %3 slots; give 1 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2 characters long; a text may have at most %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2 %; the printer&apos;s scale is from 90 to 110 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2 in; a length on a sheet is from 0 to %3 in</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quirra::AboutBox</name>
    <message>
        <source>About QuirraControl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Envelope and label printing for Qt applications: a control that lays name and address records out on envelopes and label sheets, previews them and prints them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written by the QuirraControl developers and released under the MIT licence.

Built on Qt, the cross-platform application framework, used under the GNU LGPL version 3.

Previews, PDF files and tests are set in the Liberation fonts (SIL Open Font Licence) and the DejaVu fonts (a free font licence).

The envelope and label catalogue was gathered from an open template database of a free label designer (MIT-style licence, copyright 2001-2009 its author), the nominal sizes and pitches label makers print on their packs, a free Perl library of paper and label sizes, and the published North American and ISO 269 / DIN 678 envelope size tables. Where they disagree, the catalogue&apos;s notes say which figure was kept.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quirra::ItemLayout</name>
    <message>
        <source>Overflow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piece</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to pick the item, double-click to edit the layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another piece from the catalogue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height = 2.3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width = 3.4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piece Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piece Customization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height = </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width = </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top = </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left = </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quirra::PreviewPane</name>
    <message>
        <source>First page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the page on show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pr Pg</source>
        <extracomment>Short caption of the button that prints the page on show (&quot;print page&quot;)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print all pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pr All</source>
        <extracomment>Short caption of the button that prints every page</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quirra::PreviewWindow</name>
    <message>
        <source>Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save layout…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piece…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customize…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export PDF…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quirra - %1 on %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop building the preview (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview cancelled: the pages built so far are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layouts (*.json);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layout could not be saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout saved to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent %1 pages to the printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The PDF could not be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrote %1 pages to %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quirra::PropertySheet</name>
    <message>
        <source>Quirra Properties[*]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quirra::SheetDrawing</name>
    <message>
        <source>pitch %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quirra::SheetPreview</name>
    <message>
        <source>Sheet preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No page to show</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quirra::piece_customization_form</name>
    <message>
        <source>Margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Side:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Vertical:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Horizontal:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piece</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H&amp;eight:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Across:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Down:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piece Customization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Piece Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Page size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units are in :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom piece</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>centimeters</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quirra::piece_layout_edit_form</name>
    <message>
        <source>Delivery Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delivery &amp;Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Return Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stamp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message &amp;1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Left Justify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Center Justify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Right Justify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Full Justify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piece Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bring To Front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se&amp;nd To Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Borders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quirra::piece_select_form</name>
    <message>
        <source>Piece Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut &amp;Sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Con&amp;tinuous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pro&amp;duct:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Piece:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search part, brand or product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click to see the piece&apos;s details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Piece</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
