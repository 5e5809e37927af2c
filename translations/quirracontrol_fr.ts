<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>QuirraDesignerPlugin</name>
    <message>
        <source>Envelope and label printing control</source>
        <translation>Contrôle d’impression d’enveloppes et d’étiquettes</translation>
    </message>
    <message>
        <source>Prints addresses on envelopes and label sheets and previews the pieces. Right-click it to choose the piece and lay out its items.</source>
        <translation>Imprime des adresses sur des enveloppes et des planches d’étiquettes et en affiche l’aperçu. Un clic droit permet de choisir le modèle et de disposer ses éléments.</translation>
    </message>
</context>
<context>
    <name>QuirraTaskMenu</name>
    <message>
        <source>Select piece…</source>
        <translation>Choisir le modèle…</translation>
    </message>
    <message>
        <source>Customize piece…</source>
        <translation>Personnaliser le modèle…</translation>
    </message>
    <message>
        <source>Edit layout…</source>
        <translation>Modifier la mise en page…</translation>
    </message>
    <message>
        <source>Properties…</source>
        <translation>Propriétés…</translation>
    </message>
    <message>
        <source>About…</source>
        <translation>À propos…</translation>
    </message>
</context>
<context>
    <name>quirra</name>
    <message>
        <source>holds a double quote</source>
        <translation>contient un guillemet droit</translation>
    </message>
    <message>
        <source>holds a line break</source>
        <translation>contient un saut de ligne</translation>
    </message>
    <message>
        <source>first, middle, last, address1, address2, city, state, zip (or nm_first, nm_middle, nm_last, addr_1, addr_2), bar_code (or barcode, imb), and substitute</source>
        <translation>first, middle, last, address1, address2, city, state, zip (ou nm_first, nm_middle, nm_last, addr_1, addr_2), bar_code (ou barcode, imb) et substitute</translation>
    </message>
    <message>
        <source>the columns &quot;%1&quot; and &quot;%2&quot; both name the same field; rename or remove one of them</source>
        <translation>les colonnes «&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» désignent le même champ&#xa0;; renommez ou supprimez l&apos;une d&apos;elles</translation>
    </message>
    <message>
        <source>column %1: the name &quot;%2&quot; cannot be used as a substitution name (it holds ^, |, a quote or a line break); rename it</source>
        <translation>colonne %1&#xa0;: le nom «&#xa0;%2&#xa0;» ne peut pas servir de nom de substitution (il contient ^, |, un guillemet ou un saut de ligne)&#xa0;; renommez-la</translation>
    </message>
    <message>
        <source>columns %1 and %2 are both named &quot;%3&quot;; rename one of them</source>
        <translation>les colonnes %1 et %2 s&apos;appellent toutes deux «&#xa0;%3&#xa0;»&#xa0;; renommez l&apos;une d&apos;elles</translation>
    </message>
    <message>
        <source>the header row names no address column; name the columns %1</source>
        <translation>la ligne d&apos;en-tête ne nomme aucune colonne d&apos;adresse&#xa0;; nommez les colonnes %1</translation>
    </message>
    <message>
        <source>the row has %1 fields but the header has %2; check for a missing or extra comma, or a value with a comma that needs double quotes</source>
        <translation>la ligne a %1 champs mais l&apos;en-tête en a %2&#xa0;; cherchez une virgule manquante ou en trop, ou une valeur contenant une virgule qu&apos;il faut mettre entre guillemets</translation>
    </message>
    <message>
        <source>column %1 (&quot;%2&quot;) %3, which a printed record cannot carry; remove it from the value</source>
        <translation>la colonne %1 («&#xa0;%2&#xa0;») %3, ce qu&apos;un enregistrement imprimé ne peut pas porter&#xa0;; retirez-le de la valeur</translation>
    </message>
    <message>
        <source>column %1 (&quot;%2&quot;) holds a |, which separates substitution entries; remove it from the value</source>
        <translation>la colonne %1 («&#xa0;%2&#xa0;») contient un |, qui sépare les entrées de substitution&#xa0;; retirez-le de la valeur</translation>
    </message>
    <message>
        <source>Prints a calibration sheet of a piece: each piece&apos;s outline and a cross at its centre, rulers along the top and left edges. Held over a real sheet, it tells how far off the printer puts things; --measured turns that reading into PrinterLeft, PrinterTop, PrinterScaleX and PrinterScaleY.</source>
        <translation>Imprime une feuille d&apos;étalonnage d&apos;un modèle&#xa0;: le contour de chaque étiquette avec une croix en son centre, des règles le long des bords supérieur et gauche. Posée sur une vraie feuille, elle montre le décalage de l&apos;imprimante&#xa0;; --measured transforme cette lecture en PrinterLeft, PrinterTop, PrinterScaleX et PrinterScaleY.</translation>
    </message>
    <message>
        <source>The catalogue piece (required).</source>
        <translation>Le modèle du catalogue (obligatoire).</translation>
    </message>
    <message>
        <source>name</source>
        <comment>an option&apos;s value in the help</comment>
        <translation>nom</translation>
    </message>
    <message>
        <source>Sets a property first, e.g. the present PrinterLeft.</source>
        <translation>Définit d&apos;abord une propriété, par exemple le PrinterLeft actuel.</translation>
    </message>
    <message>
        <source>property=value</source>
        <comment>an option&apos;s value in the help</comment>
        <translation>propriété=valeur</translation>
    </message>
    <message>
        <source>Write the sheet to this PDF file.</source>
        <translation>Écrire la feuille dans ce fichier PDF.</translation>
    </message>
    <message>
        <source>file</source>
        <comment>an option&apos;s value in the help</comment>
        <translation>fichier</translation>
    </message>
    <message>
        <source>Print the sheet on this printer.</source>
        <translation>Imprimer la feuille sur cette imprimante.</translation>
    </message>
    <message>
        <source>How far the crosses of the first and the last piece lie from the real pieces&apos; centres, inches, right and down positive: LEFT,TOP,RIGHT,BOTTOM.</source>
        <translation>L&apos;écart entre les croix de la première et de la dernière étiquette et les centres réels, en pouces, positif vers la droite et vers le bas&#xa0;: GAUCHE,HAUT,DROITE,BAS.</translation>
    </message>
    <message>
        <source>l,t,r,b</source>
        <comment>an option&apos;s value in the help</comment>
        <translation>g,h,d,b</translation>
    </message>
    <message>
        <source>name the piece with --piece (see quirra pieces)</source>
        <translation>indiquez le modèle avec --piece (voir quirra pieces)</translation>
    </message>
    <message>
        <source>there is no piece &quot;%1&quot; in the catalogue (see quirra pieces)</source>
        <translation>le catalogue ne contient pas de modèle «&#xa0;%1&#xa0;» (voir quirra pieces)</translation>
    </message>
    <message>
        <source>give one of --pdf FILE, --printer NAME or --measured L,T,R,B</source>
        <translation>indiquez une seule des options --pdf FICHIER, --printer NOM ou --measured G,H,D,B</translation>
    </message>
    <message>
        <source>--measured %1: give four distances in inches, each within 1 in, as LEFT,TOP,RIGHT,BOTTOM (e.g. 0.03,-0.02,0.05,0.01)</source>
        <translation>--measured %1&#xa0;: indiquez quatre distances en pouces, chacune inférieure à 1 pouce, sous la forme GAUCHE,HAUT,DROITE,BAS (par exemple 0.03,-0.02,0.05,0.01)</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossible d&apos;écrire %1</translation>
    </message>
    <message>
        <source>quirra calibrate: the sheet of &quot;%1&quot; -&gt; %2</source>
        <translation>quirra calibrate&#xa0;: la feuille de «&#xa0;%1&#xa0;» -&gt; %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>il n&apos;y a pas d&apos;imprimante nommée «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>quirra calibrate: the sheet of &quot;%1&quot; -&gt; printer %2</source>
        <translation>quirra calibrate&#xa0;: la feuille de «&#xa0;%1&#xa0;» -&gt; imprimante %2</translation>
    </message>
    <message>
        <source>the piece record has %1 fields; it needs product, piece size, page size, margins, pitch, across x down and page description</source>
        <translation>la fiche du modèle a %1 champs&#xa0;; il faut produit, taille d&apos;étiquette, format de page, marges, pas, colonnes x rangées et description de la page</translation>
    </message>
    <message>
        <source>piece size</source>
        <translation>la taille d&apos;étiquette</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>le format de page</translation>
    </message>
    <message>
        <source>margins</source>
        <translation>les marges</translation>
    </message>
    <message>
        <source>pitch</source>
        <translation>le pas</translation>
    </message>
    <message>
        <source>the %1 &quot;%2&quot; is not two numbers above 0 (&quot;W x H&quot;)</source>
        <translation>pour %1, «&#xa0;%2&#xa0;» n&apos;est pas formé de deux nombres supérieurs à 0 («&#xa0;L x H&#xa0;»)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not across x down, each 1 or more</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas de la forme colonnes x rangées, chacun valant au moins 1</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1&#xa0;: lecture impossible&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: line 1: the file is %2 MB, far too large for a catalogue</source>
        <translation>%1&#xa0;: ligne 1&#xa0;: le fichier fait %2 Mo, bien trop pour un catalogue</translation>
    </message>
    <message>
        <source>the line holds a NUL byte; this is no catalogue text</source>
        <translation>la ligne contient un octet NUL&#xa0;; ce n&apos;est pas un texte de catalogue</translation>
    </message>
    <message>
        <source>the text is not UTF-8; this is no catalogue text</source>
        <translation>le texte n&apos;est pas en UTF-8&#xa0;; ce n&apos;est pas un texte de catalogue</translation>
    </message>
    <message>
        <source>a section name without its closing &quot;]&quot;</source>
        <translation>un nom de section sans «&#xa0;]&#xa0;» fermant</translation>
    </message>
    <message>
        <source>neither a [section] nor a NAME=VALUE line</source>
        <translation>ni une [section] ni une ligne NOM=VALEUR</translation>
    </message>
    <message>
        <source>%1: line %2: the file ends without a [%3] section of pieces</source>
        <translation>%1&#xa0;: ligne %2&#xa0;: le fichier se termine sans section [%3] de modèles</translation>
    </message>
    <message>
        <source>column %1: the text is not UTF-8 (a spreadsheet&apos;s &quot;CSV&quot; in a legacy code page?); save the file as &quot;CSV UTF-8&quot;</source>
        <translation>colonne %1&#xa0;: le texte n&apos;est pas en UTF-8 (un «&#xa0;CSV&#xa0;» de tableur dans une ancienne page de codes&#xa0;?)&#xa0;; enregistrez le fichier en «&#xa0;CSV UTF-8&#xa0;»</translation>
    </message>
    <message>
        <source>column %1: a quoted field that began on line %2 is never closed; add the closing double quote</source>
        <translation>colonne %1&#xa0;: un champ entre guillemets ouvert à la ligne %2 n&apos;est jamais fermé&#xa0;; ajoutez le guillemet fermant</translation>
    </message>
    <message>
        <source>column %1: text after the closing quote of a quoted field; put the whole value in quotes and double any quote inside it</source>
        <translation>colonne %1&#xa0;: du texte après le guillemet fermant d&apos;un champ&#xa0;; mettez toute la valeur entre guillemets et doublez chaque guillemet qu&apos;elle contient</translation>
    </message>
    <message>
        <source>column %1: a field longer than %2 bytes; is this a CSV file?</source>
        <translation>colonne %1&#xa0;: un champ de plus de %2 octets&#xa0;; est-ce bien un fichier CSV&#xa0;?</translation>
    </message>
    <message>
        <source>quirra %1: the catalogue is damaged: %2. Reinstall it, or set QUIRRA_SYSTEM_DIR to the folder of a complete one.</source>
        <translation>quirra %1&#xa0;: le catalogue est endommagé&#xa0;: %2. Réinstallez-le ou faites pointer QUIRRA_SYSTEM_DIR vers le dossier d&apos;un catalogue complet.</translation>
    </message>
    <message>
        <source>quirra %1: %2
Run &apos;quirra %1 --help&apos; for its options.</source>
        <translation>quirra %1&#xa0;: %2
&apos;quirra %1 --help&apos; affiche ses options.</translation>
    </message>
    <message>
        <source>Usage: quirra %1</source>
        <translation>Utilisation&#xa0;: quirra %1</translation>
    </message>
    <message>
        <source>reading</source>
        <extracomment>The progress bar&apos;s stage while the CSV file is read</extracomment>
        <translation>lecture</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 enregistrements</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;; %2; --pdf OUT.pdf writes a PDF file instead</source>
        <translation>il n&apos;y a pas d&apos;imprimante nommée «&#xa0;%1&#xa0;»&#xa0;; %2&#xa0;; --pdf SORTIE.pdf écrit un fichier PDF à la place</translation>
    </message>
    <message>
        <source>no printer is set up here</source>
        <translation>aucune imprimante n&apos;est configurée ici</translation>
    </message>
    <message>
        <source>the printers are: </source>
        <translation>les imprimantes sont&#xa0;: </translation>
    </message>
    <message>
        <source>no default printer is set up; name one with --printer NAME, or write a PDF file with --pdf OUT.pdf</source>
        <translation>aucune imprimante par défaut n&apos;est configurée&#xa0;; indiquez-en une avec --printer NOM ou écrivez un fichier PDF avec --pdf SORTIE.pdf</translation>
    </message>
    <message>
        <source>Prints the addresses of a CSV file (a header row, then one recipient a row) on the chosen piece, or writes them to a PDF file.</source>
        <translation>Imprime les adresses d&apos;un fichier CSV (une ligne d&apos;en-tête, puis un destinataire par ligne) sur le modèle choisi, ou les écrit dans un fichier PDF.</translation>
    </message>
    <message>
        <source>quirra print: interrupted while reading; nothing was printed</source>
        <translation>quirra print&#xa0;: interrompu pendant la lecture&#xa0;; rien n&apos;a été imprimé</translation>
    </message>
    <message>
        <source>quirra print: %1 (%2 cannot be written)</source>
        <translation>quirra print&#xa0;: %1 (impossible d&apos;écrire sur %2)</translation>
    </message>
    <message>
        <source>the printer </source>
        <translation>l&apos;imprimante </translation>
    </message>
    <message>
        <source>quirra print: %1; nothing was printed</source>
        <translation>quirra print&#xa0;: %1&#xa0;; rien n&apos;a été imprimé</translation>
    </message>
    <message>
        <source>page %1 of %2</source>
        <translation>page %1 sur %2</translation>
    </message>
    <message>
        <source>printing</source>
        <extracomment>The progress bar&apos;s stage while the pages are printed</extracomment>
        <translation>impression</translation>
    </message>
    <message>
        <source>quirra print: interrupted; nothing was printed</source>
        <translation>quirra print&#xa0;: interrompu&#xa0;; rien n&apos;a été imprimé</translation>
    </message>
    <message>
        <source>printer </source>
        <translation>imprimante </translation>
    </message>
    <message>
        <source>quirra print: %1 %2, %3 %4 on &quot;%5&quot; -&gt; %6</source>
        <translation>quirra print&#xa0;: %1 %2, %3 %4 sur «&#xa0;%5&#xa0;» -&gt; %6</translation>
    </message>
    <message>
        <source>record</source>
        <translation>enregistrement</translation>
    </message>
    <message>
        <source>records</source>
        <translation>enregistrements</translation>
    </message>
    <message>
        <source>page</source>
        <translation>page</translation>
    </message>
    <message>
        <source>pages</source>
        <translation>pages</translation>
    </message>
    <message>
        <source>Shows the addresses of a CSV file on the chosen piece in a window, to page through, print, export as PDF or save the layout.</source>
        <translation>Affiche les adresses d&apos;un fichier CSV sur le modèle choisi dans une fenêtre, pour les feuilleter, les imprimer, les exporter en PDF ou enregistrer la mise en page.</translation>
    </message>
    <message>
        <source>quirra preview: there is no display to show the window on (%1); quirra print --pdf OUT.pdf writes the pages to a file instead</source>
        <translation>quirra preview&#xa0;: aucun écran où afficher la fenêtre (%1)&#xa0;; quirra print --pdf SORTIE.pdf écrit les pages dans un fichier à la place</translation>
    </message>
    <message>
        <source>DISPLAY is not set</source>
        <translation>DISPLAY n&apos;est pas défini</translation>
    </message>
    <message>
        <source>cannot open display %1</source>
        <translation>impossible d&apos;ouvrir l&apos;écran %1</translation>
    </message>
    <message>
        <source>quirra preview: stopped at page %1 (cancelled); the pages built so far are shown</source>
        <translation>quirra preview&#xa0;: arrêté à la page %1 (annulé)&#xa0;; les pages déjà construites sont affichées</translation>
    </message>
    <message>
        <source>Lists the catalogue&apos;s envelopes and labels: family, product, piece, size, layout, paper.</source>
        <translation>Liste les enveloppes et étiquettes du catalogue&#xa0;: famille, produit, modèle, taille, disposition, papier.</translation>
    </message>
    <message>
        <source>Only the pieces of this product.</source>
        <translation>Seulement les modèles de ce produit.</translation>
    </message>
    <message>
        <source>Only the pieces whose name, brand, part or product holds every word of the text.</source>
        <translation>Seulement les modèles dont le nom, la marque, la référence ou le produit contient chaque mot du texte.</translation>
    </message>
    <message>
        <source>text</source>
        <comment>an option&apos;s value in the help</comment>
        <translation>texte</translation>
    </message>
    <message>
        <source>Only the imported products of this brand.</source>
        <translation>Seulement les produits importés de cette marque.</translation>
    </message>
    <message>
        <source>quirra pieces: unexpected argument %1</source>
        <translation>quirra pieces&#xa0;: argument inattendu %1</translation>
    </message>
    <message>
        <source>quirra pieces: no catalogue (quirra.cfg) in %1; set QUIRRA_SYSTEM_DIR to the folder that holds it</source>
        <translation>quirra pieces&#xa0;: aucun catalogue (quirra.cfg) dans %1&#xa0;; faites pointer QUIRRA_SYSTEM_DIR vers le dossier qui le contient</translation>
    </message>
    <message>
        <source>quirra pieces: no piece matches; &apos;quirra pieces&apos; lists them all</source>
        <translation>quirra pieces&#xa0;: aucun modèle ne correspond&#xa0;; &apos;quirra pieces&apos; les liste tous</translation>
    </message>
    <message>
        <source>quirra pieces: the catalogue %1 lists no pieces; is it a catalogue file? Set QUIRRA_SYSTEM_DIR to the folder of a complete one</source>
        <translation>quirra pieces&#xa0;: le catalogue %1 ne contient aucun modèle&#xa0;; est-ce bien un fichier de catalogue&#xa0;? Faites pointer QUIRRA_SYSTEM_DIR vers le dossier d&apos;un catalogue complet</translation>
    </message>
    <message>
        <source>quirra: unknown command &quot;%1&quot;</source>
        <translation>quirra&#xa0;: commande inconnue «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>un dossier</translation>
    </message>
    <message>
        <source>a named pipe (FIFO)</source>
        <translation>un tube nommé (FIFO)</translation>
    </message>
    <message>
        <source>a device</source>
        <translation>un périphérique</translation>
    </message>
    <message>
        <source>a socket</source>
        <translation>un socket</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the PDF needs a file name</source>
        <translation>le PDF a besoin d&apos;un nom de fichier</translation>
    </message>
    <message>
        <source>%1 is a loop of symbolic links</source>
        <translation>%1 est une boucle de liens symboliques</translation>
    </message>
    <message>
        <source>%1 is %2; --pdf needs the name of a regular file or of a new one</source>
        <translation>%1 est %2&#xa0;; --pdf attend le nom d&apos;un fichier ordinaire ou d&apos;un nouveau fichier</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossible d&apos;écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the folder %1 does not exist; create it first</source>
        <translation>le dossier %1 n&apos;existe pas&#xa0;; créez-le d&apos;abord</translation>
    </message>
    <message>
        <source>cannot write in the folder %1: %2</source>
        <translation>impossible d&apos;écrire dans le dossier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the disk is full (no space left in %1); free some room and run again</source>
        <translation>le disque est plein (plus de place dans %1)&#xa0;; libérez de l&apos;espace et relancez</translation>
    </message>
    <message>
        <source>a write failed (an input/output error or a disk quota); check the disk and run again</source>
        <translation>une écriture a échoué (erreur d&apos;entrée/sortie ou quota disque)&#xa0;; vérifiez le disque et relancez</translation>
    </message>
    <message>
        <source>no PDF was started</source>
        <translation>aucun PDF n&apos;a été commencé</translation>
    </message>
    <message>
        <source>the file there is as it was</source>
        <translation>le fichier existant est inchangé</translation>
    </message>
    <message>
        <source>no file was made</source>
        <translation>aucun fichier n&apos;a été créé</translation>
    </message>
    <message>
        <source>%1 was not written: %2; %3</source>
        <translation>%1 n&apos;a pas été écrit&#xa0;: %2&#xa0;; %3</translation>
    </message>
    <message>
        <source>no page was written</source>
        <translation>aucune page n&apos;a été écrite</translation>
    </message>
    <message>
        <source>the file came out incomplete: </source>
        <translation>le fichier est incomplet&#xa0;: </translation>
    </message>
    <message>
        <source>… (%1 characters)</source>
        <translation>… (%1 caractères)</translation>
    </message>
    <message>
        <source>1 record</source>
        <translation>1 enregistrement</translation>
    </message>
    <message>
        <source>1 record needs a look:</source>
        <translation>1 enregistrement est à vérifier&#xa0;:</translation>
    </message>
    <message>
        <source>%1 records need a look:</source>
        <translation>%1 enregistrements sont à vérifier&#xa0;:</translation>
    </message>
    <message>
        <source> (and 1 more record)</source>
        <translation> (et 1 autre enregistrement)</translation>
    </message>
    <message>
        <source> (and %1 more records)</source>
        <translation> (et %1 autres enregistrements)</translation>
    </message>
    <message>
        <source>Check every record first; when any needs a look (a city line cut or left out, text cut off, a piece off the page ...), say so and exit with status 3 without printing or writing anything.</source>
        <translation>Vérifier d&apos;abord chaque enregistrement&#xa0;; si l&apos;un d&apos;eux est à revoir (ligne de ville coupée ou omise, texte tronqué, étiquette hors de la page...), le signaler et terminer avec le code 3 sans rien imprimer ni écrire.</translation>
    </message>
    <message>
        <source>quirra %1: nothing was printed (--strict); correct the records or the layout, or leave out --strict to print as it is</source>
        <translation>quirra %1&#xa0;: rien n&apos;a été imprimé (--strict)&#xa0;; corrigez les enregistrements ou la mise en page, ou omettez --strict pour imprimer tel quel</translation>
    </message>
    <message>
        <source>Checks the addresses of a CSV file on the chosen piece as print would print them, and tells which records need a look; prints nothing. Exit status 0: all clean, 3: some records need a look.</source>
        <translation>Vérifie les adresses d&apos;un fichier CSV sur le modèle choisi telles que print les imprimerait et indique les enregistrements à revoir&#xa0;; n&apos;imprime rien. Code de sortie 0&#xa0;: tout est correct, 3&#xa0;: des enregistrements sont à revoir.</translation>
    </message>
    <message>
        <source>quirra check: %1 on &quot;%2&quot;: nothing to note</source>
        <translation>quirra check&#xa0;: %1 sur «&#xa0;%2&#xa0;»&#xa0;: rien à signaler</translation>
    </message>
    <message>
        <source>--set %1: write it as NAME=VALUE, e.g. --set AddressHorzAlign=haCenter</source>
        <translation>--set %1&#xa0;: écrivez-la sous la forme NOM=VALEUR, par exemple --set AddressHorzAlign=haCenter</translation>
    </message>
    <message>
        <source>--set %1: the property&apos;s name is missing before &apos;=&apos;</source>
        <translation>--set %1&#xa0;: le nom de la propriété manque avant &apos;=&apos;</translation>
    </message>
    <message>
        <source>one of %1, by name or number</source>
        <translation>l&apos;une des valeurs %1, par nom ou par numéro</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>un nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>a number with a full stop as decimal point, e.g. 0.25 (inches for lengths)</source>
        <translation>un nombre avec un point comme séparateur décimal, par exemple 0.25 (en pouces pour les longueurs)</translation>
    </message>
    <message>
        <source>true or false (or 1 or 0)</source>
        <translation>true ou false (ou 1 ou 0)</translation>
    </message>
    <message>
        <source>text; \n starts a new line</source>
        <translation>du texte&#xa0;; \n commence une nouvelle ligne</translation>
    </message>
    <message>
        <source>a font as family and point size, e.g. &quot;Liberation Serif,12&quot;, or a full QFont::toString() text</source>
        <translation>une police sous la forme famille et taille en points, par exemple «&#xa0;Liberation Serif,12&#xa0;», ou un texte QFont::toString() complet</translation>
    </message>
    <message>
        <source>a value of type %1, which cannot be given on the command line</source>
        <translation>une valeur de type %1, qui ne peut pas être donnée en ligne de commande</translation>
    </message>
    <message>
        <source>--set %1: the control has no property &quot;%1&quot;</source>
        <translation>--set %1&#xa0;: le contrôle n&apos;a pas de propriété «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>; did you mean %1?</source>
        <translation>&#xa0;; vouliez-vous dire %1&#xa0;?</translation>
    </message>
    <message>
        <source>--set %1: the property cannot be set</source>
        <translation>--set %1&#xa0;: cette propriété ne peut pas être modifiée</translation>
    </message>
    <message>
        <source>--set %1=%2: %1 takes %3</source>
        <translation>--set %1=%2&#xa0;: %1 attend %3</translation>
    </message>
    <message>
        <source>--set %1=%2: the control did not take the value; %1 takes %3</source>
        <translation>--set %1=%2&#xa0;: le contrôle n&apos;a pas accepté la valeur&#xa0;; %1 attend %3</translation>
    </message>
    <message>
        <source>--set %1: no font family &quot;%2&quot; is installed; the closest one is used</source>
        <translation>--set %1&#xa0;: aucune famille de polices «&#xa0;%2&#xa0;» n&apos;est installée&#xa0;; la plus proche est utilisée</translation>
    </message>
    <message>
        <source>no CSV file given and standard input is a terminal; name a file or pipe one in</source>
        <translation>aucun fichier CSV indiqué et l&apos;entrée standard est un terminal&#xa0;; indiquez un fichier ou envoyez-en un par un tube</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>cannot read standard input: %1</source>
        <translation>impossible de lire l&apos;entrée standard&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: is a folder; name the CSV file</source>
        <translation>%1&#xa0;: est un dossier&#xa0;; indiquez le fichier CSV</translation>
    </message>
    <message>
        <source>%1: cannot read the file: %2</source>
        <translation>%1&#xa0;: impossible de lire le fichier&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: the file is empty; it needs a header row naming its columns: %2</source>
        <translation>%1&#xa0;: le fichier est vide&#xa0;; il lui faut une ligne d&apos;en-tête nommant ses colonnes&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: no column is named &quot;%2&quot; (--copies-column); the columns are %3</source>
        <translation>%1&#xa0;: aucune colonne ne s&apos;appelle «&#xa0;%2&#xa0;» (--copies-column)&#xa0;; les colonnes sont %3</translation>
    </message>
    <message>
        <source>%1: line %2: the copies column &quot;%3&quot; holds &quot;%4&quot;; give a whole number, 0 to %5</source>
        <translation>%1&#xa0;: ligne %2&#xa0;: la colonne des exemplaires «&#xa0;%3&#xa0;» contient «&#xa0;%4&#xa0;»&#xa0;; indiquez un nombre entier de 0 à %5</translation>
    </message>
    <message>
        <source>%1: stopped after %2 records</source>
        <translation>%1&#xa0;: arrêté après %2 enregistrements</translation>
    </message>
    <message>
        <source>%1: no records after the header row; nothing to print</source>
        <translation>%1&#xa0;: aucun enregistrement après la ligne d&apos;en-tête&#xa0;; rien à imprimer</translation>
    </message>
    <message>
        <source>there is no catalogue (quirra.cfg) in %1 to find the piece &quot;%2&quot; in; set QUIRRA_SYSTEM_DIR to the folder that holds it</source>
        <translation>il n&apos;y a pas de catalogue (quirra.cfg) dans %1 où chercher le modèle «&#xa0;%2&#xa0;»&#xa0;; faites pointer QUIRRA_SYSTEM_DIR vers le dossier qui le contient</translation>
    </message>
    <message>
        <source>the catalogue has no piece &quot;%1&quot;</source>
        <translation>le catalogue n&apos;a pas de modèle «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source> (quirra pieces lists them all)</source>
        <translation> (quirra pieces les liste tous)</translation>
    </message>
    <message>
        <source>The CSV file (UTF-8, a header row naming the columns); - or nothing reads standard input.</source>
        <translation>Le fichier CSV (UTF-8, une ligne d&apos;en-tête nommant les colonnes)&#xa0;; - ou rien lit l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>The catalogue piece to print on (see quirra pieces); default &quot;%1&quot;.</source>
        <translation>Le modèle du catalogue sur lequel imprimer (voir quirra pieces)&#xa0;; par défaut «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>A saved layout (JSON, as quirra preview saves it), read before --piece and --set.</source>
        <translation>Une mise en page enregistrée (JSON, telle que quirra preview l&apos;enregistre), lue avant --piece et --set.</translation>
    </message>
    <message>
        <source>Sets a property of the control by its name, e.g. ReturnText=&quot;ACME Mail\n1 Main St&quot;, AddressHorzAlign=haCenter, AddressFont=&quot;Liberation Serif,12&quot;; applied in order after --layout and --piece. May be repeated.</source>
        <translation>Définit une propriété du contrôle par son nom, par exemple ReturnText=&quot;ACME Mail\n1 Main St&quot;, AddressHorzAlign=haCenter, AddressFont=&quot;Liberation Serif,12&quot;&#xa0;; appliquée dans l&apos;ordre après --layout et --piece. Peut être répétée.</translation>
    </message>
    <message>
        <source>Write the pages to this PDF file instead of printing.</source>
        <translation>Écrire les pages dans ce fichier PDF au lieu d&apos;imprimer.</translation>
    </message>
    <message>
        <source>Print only these pages: 3-5, 4 or 2- (to the end).</source>
        <translation>N&apos;imprimer que ces pages&#xa0;: 3-5, 4 ou 2- (jusqu&apos;à la fin).</translation>
    </message>
    <message>
        <source>range</source>
        <comment>an option&apos;s value in the help</comment>
        <translation>plage</translation>
    </message>
    <message>
        <source>Print on this printer (default: the system&apos;s default printer).</source>
        <translation>Imprimer sur cette imprimante (par défaut&#xa0;: l&apos;imprimante par défaut du système).</translation>
    </message>
    <message>
        <source>Start on slot N of the first sheet (slots numbered row by row from 1), to use up a sheet already used.</source>
        <translation>Commencer à l&apos;emplacement N de la première feuille (emplacements numérotés rangée par rangée à partir de 1), pour finir une feuille entamée.</translation>
    </message>
    <message>
        <source>Draw each piece&apos;s outline, thin and grey, to check the alignment on plain paper.</source>
        <translation>Tracer le contour de chaque étiquette, fin et gris, pour vérifier l&apos;alignement sur du papier ordinaire.</translation>
    </message>
    <message>
        <source>The column holding how many pieces of each record to print (a whole number, 0 or more).</source>
        <translation>La colonne indiquant combien d&apos;exemplaires imprimer pour chaque enregistrement (un nombre entier, 0 ou plus).</translation>
    </message>
    <message>
        <source>Draw a progress bar on standard error (the default when it is a terminal).</source>
        <translation>Afficher une barre de progression sur la sortie d&apos;erreur (par défaut si c&apos;est un terminal).</translation>
    </message>
    <message>
        <source>Draw no progress bar.</source>
        <translation>N&apos;afficher aucune barre de progression.</translation>
    </message>
    <message>
        <source>give one CSV file, not %1 (%2)</source>
        <translation>indiquez un seul fichier CSV, pas %1 (%2)</translation>
    </message>
    <message>
        <source>the CSV file name is empty</source>
        <translation>le nom du fichier CSV est vide</translation>
    </message>
    <message>
        <source>--piece needs a name (see quirra pieces)</source>
        <translation>--piece attend un nom (voir quirra pieces)</translation>
    </message>
    <message>
        <source>--pdf needs a file name</source>
        <translation>--pdf attend un nom de fichier</translation>
    </message>
    <message>
        <source>--printer needs a printer&apos;s name</source>
        <translation>--printer attend le nom d&apos;une imprimante</translation>
    </message>
    <message>
        <source>give either --pdf or --printer, not both</source>
        <translation>indiquez --pdf ou --printer, pas les deux</translation>
    </message>
    <message>
        <source>--start %1: give the slot as a whole number from 1</source>
        <translation>--start %1&#xa0;: indiquez l&apos;emplacement par un nombre entier à partir de 1</translation>
    </message>
    <message>
        <source>--pages %1: give a page or a range of pages from 1, as 3-5, 4 or 2-</source>
        <translation>--pages %1&#xa0;: indiquez une page ou une plage de pages à partir de 1, comme 3-5, 4 ou 2-</translation>
    </message>
    <message>
        <source>--copies-column needs a column&apos;s name</source>
        <translation>--copies-column attend le nom d&apos;une colonne</translation>
    </message>
    <message>
        <source>give either --progress or --no-progress, not both</source>
        <translation>indiquez --progress ou --no-progress, pas les deux</translation>
    </message>
    <message>
        <source>--start %1: the sheet of &quot;%2&quot; has %3 slots; give 1 to %3</source>
        <translation>--start %1&#xa0;: la feuille de «&#xa0;%2&#xa0;» a %3 emplacements&#xa0;; indiquez 1 à %3</translation>
    </message>
    <message>
        <source>%1 is %2 characters long; a text may have at most %3</source>
        <translation>%1 fait %2 caractères&#xa0;; un texte peut en avoir au plus %3</translation>
    </message>
    <message>
        <source>%1 is %2 %; the printer&apos;s scale is from 90 to 110 %</source>
        <translation>%1 vaut %2 %&#xa0;; l&apos;échelle de l&apos;imprimante va de 90 à 110 %</translation>
    </message>
    <message>
        <source>%1 is %2 in; a length on a sheet is from 0 to %3 in</source>
        <translation>%1 vaut %2 pouces&#xa0;; une longueur sur une feuille va de 0 à %3 pouces</translation>
    </message>
</context>
<context>
    <name>quirra::AboutBox</name>
    <message>
        <source>About QuirraControl</source>
        <translation>À propos de QuirraControl</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Envelope and label printing for Qt applications: a control that lays name and address records out on envelopes and label sheets, previews them and prints them.</source>
        <translation>Impression d&apos;enveloppes et d&apos;étiquettes pour les applications Qt&#xa0;: un contrôle qui dispose des noms et adresses sur des enveloppes et des planches d&apos;étiquettes, les affiche en aperçu et les imprime.</translation>
    </message>
    <message>
        <source>Written by the QuirraControl developers and released under the MIT licence.

Built on Qt, the cross-platform application framework, used under the GNU LGPL version 3.

Previews, PDF files and tests are set in the Liberation fonts (SIL Open Font Licence) and the DejaVu fonts (a free font licence).

The envelope and label catalogue was gathered from an open template database of a free label designer (MIT-style licence, copyright 2001-2009 its author), the nominal sizes and pitches label makers print on their packs, a free Perl library of paper and label sizes, and the published North American and ISO 269 / DIN 678 envelope size tables. Where they disagree, the catalogue&apos;s notes say which figure was kept.</source>
        <translation>Écrit par les développeurs de QuirraControl et publié sous licence MIT.

Construit sur Qt, le framework d&apos;applications multiplateforme, utilisé sous la GNU LGPL version 3.

Les aperçus, les fichiers PDF et les tests sont composés dans les polices Liberation (SIL Open Font Licence) et DejaVu (une licence de police libre).

Le catalogue d&apos;enveloppes et d&apos;étiquettes a été constitué à partir d&apos;une base de modèles ouverte d&apos;un logiciel libre de création d&apos;étiquettes (licence de type MIT, copyright 2001-2009 son auteur), des tailles et pas nominaux que les fabricants impriment sur leurs emballages, d&apos;une bibliothèque Perl libre de formats de papier et d&apos;étiquettes, et des tableaux publiés des formats d&apos;enveloppes nord-américains et ISO 269 / DIN 678. Là où ils divergent, les notes du catalogue indiquent quelle valeur a été retenue.</translation>
    </message>
</context>
<context>
    <name>quirra::CalibrationFields</name>
    <message>
        <source>Left offset</source>
        <translation>Décalage à gauche</translation>
    </message>
    <message>
        <source>Top offset</source>
        <translation>Décalage en haut</translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation>Échelle horizontale</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>Échelle verticale</translation>
    </message>
    <message>
        <source>Printer calibration</source>
        <translation>Étalonnage de l’imprimante</translation>
    </message>
    <message>
        <source>%1, from %2 to %3 %4 (the property %5)</source>
        <translation>%1, de %2 à %3 %4 (la propriété %5)</translation>
    </message>
    <message>
        <source>%1 (%2):</source>
        <translation>%1 (%2)&#xa0;:</translation>
    </message>
    <message>
        <source>%1 goes from %2 to %3 %4; it stays %5 %4.</source>
        <translation>%1 va de %2 à %3 %4&#xa0;; la valeur reste %5 %4.</translation>
    </message>
    <message>
        <source>%1 %2 is out of range: %3</source>
        <translation>%1 %2 est hors limites&#xa0;: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number: %2</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>quirra::ItemLayout</name>
    <message>
        <source>Overflow</source>
        <translation>Débordement</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Click to pick the item, double-click to edit the layout</source>
        <translation>Cliquez pour choisir l&apos;élément, double-cliquez pour modifier la mise en page</translation>
    </message>
    <message>
        <source>Choose another piece from the catalogue</source>
        <translation>Choisir un autre modèle dans le catalogue</translation>
    </message>
    <message>
        <source>Height = 2.3</source>
        <translation>Hauteur = 2.3</translation>
    </message>
    <message>
        <source>Width = 3.4</source>
        <translation>Largeur = 3.4</translation>
    </message>
    <message>
        <source>Piece Layout</source>
        <translation>Mise en page du modèle</translation>
    </message>
    <message>
        <source>Piece Customization</source>
        <translation>Personnalisation du modèle</translation>
    </message>
    <message>
        <source>Height = </source>
        <translation>Hauteur = </translation>
    </message>
    <message>
        <source>Width = </source>
        <translation>Largeur = </translation>
    </message>
    <message>
        <source>Top = </source>
        <translation>Haut = </translation>
    </message>
    <message>
        <source>Left = </source>
        <translation>Gauche = </translation>
    </message>
</context>
<context>
    <name>quirra::PreviewPane</name>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>Print the page on show</source>
        <translation>Imprimer la page affichée</translation>
    </message>
    <message>
        <source>Pr Pg</source>
        <extracomment>Short caption of the button that prints the page on show (&quot;print page&quot;)</extracomment>
        <translation>Imp. p.</translation>
    </message>
    <message>
        <source>Pr All</source>
        <extracomment>Short caption of the button that prints every page</extracomment>
        <translation>Imp. tt</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Print the page on show: choose the printer and the copies first</source>
        <translation>Imprimer la page affichée&#xa0;: choisir d’abord l’imprimante et les copies</translation>
    </message>
    <message>
        <source>Print the page on show on the printer</source>
        <translation>Imprimer la page affichée sur l’imprimante</translation>
    </message>
    <message>
        <source>Print the whole run: choose the printer, the copies and the pages first</source>
        <translation>Imprimer toute la série&#xa0;: choisir d’abord l’imprimante, les copies et les pages</translation>
    </message>
    <message>
        <source>Print the whole run, every page, on the printer</source>
        <translation>Imprimer toute la série, chaque page, sur l’imprimante</translation>
    </message>
    <message>
        <source>Print the run</source>
        <translation>Imprimer la série</translation>
    </message>
</context>
<context>
    <name>quirra::PreviewWindow</name>
    <message>
        <source>Run</source>
        <translation>Série</translation>
    </message>
    <message>
        <source>Save layout…</source>
        <translation>Enregistrer la mise en page…</translation>
    </message>
    <message>
        <source>Piece…</source>
        <translation>Modèle…</translation>
    </message>
    <message>
        <source>Customize…</source>
        <translation>Personnaliser…</translation>
    </message>
    <message>
        <source>Layout…</source>
        <translation>Mise en page…</translation>
    </message>
    <message>
        <source>Properties…</source>
        <translation>Propriétés…</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>Export PDF…</source>
        <translation>Exporter en PDF…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>quirra - %1 on %2</source>
        <translation>quirra - %1 sur %2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stop building the preview (Esc)</source>
        <translation>Arrêter la construction de l&apos;aperçu (Échap)</translation>
    </message>
    <message>
        <source>Preview cancelled: the pages built so far are shown</source>
        <translation>Aperçu annulé&#xa0;: les pages déjà construites sont affichées</translation>
    </message>
    <message>
        <source>Save layout</source>
        <translation>Enregistrer la mise en page</translation>
    </message>
    <message>
        <source>Layouts (*.json);;All files (*)</source>
        <translation>Mises en page (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The layout could not be saved: %1</source>
        <translation>La mise en page n&apos;a pas pu être enregistrée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Layout saved to %1</source>
        <translation>Mise en page enregistrée dans %1</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 a échoué&#xa0;: %2</translation>
    </message>
    <message>
        <source>Print the run</source>
        <translation>Imprimer la série</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>L&apos;impression</translation>
    </message>
    <message>
        <source>Sent %1 pages to the printer</source>
        <translation>%1 pages envoyées à l&apos;imprimante</translation>
    </message>
    <message>
        <source>Export PDF</source>
        <translation>Exporter en PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Fichiers PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The PDF could not be written: %1</source>
        <translation>Le PDF n&apos;a pas pu être écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>The export</source>
        <translation>L&apos;export</translation>
    </message>
    <message>
        <source>Wrote %1 pages to %2</source>
        <translation>%1 pages écrites dans %2</translation>
    </message>
    <message>
        <source>Zoom of the page on show, in percent (also Ctrl+wheel, Ctrl+plus and Ctrl+minus on the page)</source>
        <translation>Zoom de la page affichée, en pour cent (aussi Ctrl+molette, Ctrl+plus et Ctrl+moins sur la page)</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Page entière</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Pleine largeur</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>quirra::PropertySheet</name>
    <message>
        <source>Quirra Properties[*]</source>
        <translation>Propriétés de Quirra[*]</translation>
    </message>
</context>
<context>
    <name>quirra::SheetDrawing</name>
    <message>
        <source>pitch %1</source>
        <translation>pas %1</translation>
    </message>
</context>
<context>
    <name>quirra::SheetPreview</name>
    <message>
        <source>Sheet preview</source>
        <translation>Aperçu de la feuille</translation>
    </message>
    <message>
        <source>No page to show</source>
        <translation>Aucune page à afficher</translation>
    </message>
</context>
<context>
    <name>quirra::piece_customization_form</name>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Haut&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Side:</source>
        <translation>&amp;Gauche&#xa0;:</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>&amp;Vertical:</source>
        <translation>&amp;Vertical&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Horizontal:</source>
        <translation>Hori&amp;zontal&#xa0;:</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>H&amp;eight:</source>
        <translation>Hau&amp;teur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Nombre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Across:</source>
        <translation>&amp;Colonnes&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Down:</source>
        <translation>&amp;Rangées&#xa0;:</translation>
    </message>
    <message>
        <source>Piece Customization</source>
        <translation>Personnalisation du modèle</translation>
    </message>
    <message>
        <source>&amp;Piece Name:</source>
        <translation>&amp;Nom du modèle&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Page size:</source>
        <translation>&amp;Format de page&#xa0;:</translation>
    </message>
    <message>
        <source>Units are in :</source>
        <translation>Unité&#xa0;:</translation>
    </message>
    <message>
        <source>Custom piece</source>
        <translation>Modèle personnalisé</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>O&amp;k</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>pouces</translation>
    </message>
    <message>
        <source>centimeters</source>
        <translation>centimètres</translation>
    </message>
    <message>
        <source>Letter (8 ½ x 11 in)</source>
        <translation>Lettre US (8 ½ x 11 po)</translation>
    </message>
    <message>
        <source>Letter landscape (11 x 8 ½ in)</source>
        <translation>Lettre US paysage (11 x 8 ½ po)</translation>
    </message>
    <message>
        <source>A4 (21 x 29.7 cm)</source>
        <translation>A4 (21 x 29,7 cm)</translation>
    </message>
    <message>
        <source>A4 landscape (29.7 x 21 cm)</source>
        <translation>A4 paysage (29,7 x 21 cm)</translation>
    </message>
    <message>
        <source>A5 (14.8 x 21 cm)</source>
        <translation>A5 (14,8 x 21 cm)</translation>
    </message>
    <message>
        <source>A5 landscape (21 x 14.8 cm)</source>
        <translation>A5 paysage (21 x 14,8 cm)</translation>
    </message>
    <message>
        <source>B5 (18.2 x 25.7 cm)</source>
        <translation>B5 (18,2 x 25,7 cm)</translation>
    </message>
    <message>
        <source>Mini (4 ¼ x 5 in)</source>
        <translation>Mini (4 ¼ x 5 po)</translation>
    </message>
</context>
<context>
    <name>quirra::piece_layout_edit_form</name>
    <message>
        <source>Delivery Address</source>
        <translation>Adresse du destinataire</translation>
    </message>
    <message>
        <source>Return Address</source>
        <translation>Adresse de l&apos;expéditeur</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Timbre</translation>
    </message>
    <message>
        <source>Message 1</source>
        <translation>Message 1</translation>
    </message>
    <message>
        <source>Message 2</source>
        <translation>Message 2</translation>
    </message>
    <message>
        <source>Delivery &amp;Address</source>
        <translation>Adresse du &amp;destinataire</translation>
    </message>
    <message>
        <source>&amp;Return Address</source>
        <translation>Adresse de l&apos;&amp;expéditeur</translation>
    </message>
    <message>
        <source>&amp;Stamp</source>
        <translation>&amp;Timbre</translation>
    </message>
    <message>
        <source>Message &amp;1</source>
        <translation>Message &amp;1</translation>
    </message>
    <message>
        <source>Message &amp;2</source>
        <translation>Message &amp;2</translation>
    </message>
    <message>
        <source>&amp;Left Justify</source>
        <translation>Aligner à &amp;gauche</translation>
    </message>
    <message>
        <source>&amp;Center Justify</source>
        <translation>&amp;Centrer</translation>
    </message>
    <message>
        <source>&amp;Right Justify</source>
        <translation>Aligner à &amp;droite</translation>
    </message>
    <message>
        <source>&amp;Full Justify</source>
        <translation>&amp;Justifier</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Haut&#xa0;:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Gauche&#xa0;:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Hauteur&#xa0;:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>Piece Layout</source>
        <translation>Mise en page du modèle</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>&amp;Bring To Front</source>
        <translation>Mettre au &amp;premier plan</translation>
    </message>
    <message>
        <source>Se&amp;nd To Back</source>
        <translation>Mettre à l&apos;&amp;arrière-plan</translation>
    </message>
    <message>
        <source>Default</source>
        <extracomment>Menu command: puts every item back where the piece&apos;s default layout has it</extracomment>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>&amp;Font</source>
        <translation>&amp;Police</translation>
    </message>
    <message>
        <source>Borders</source>
        <translation>Bordures</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <translation>&amp;Affichage</translation>
    </message>
</context>
<context>
    <name>quirra::piece_select_form</name>
    <message>
        <source>Piece Selection</source>
        <translation>Choix du modèle</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papier&#xa0;:</translation>
    </message>
    <message>
        <source>Cut &amp;Sheet</source>
        <translation>&amp;Feuille à feuille</translation>
    </message>
    <message>
        <source>Con&amp;tinuous</source>
        <translation>Papier &amp;continu</translation>
    </message>
    <message>
        <source>Pro&amp;duct:</source>
        <translation>Pro&amp;duit&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Piece:</source>
        <translation>&amp;Modèle&#xa0;:</translation>
    </message>
    <message>
        <source>Search part, brand or product</source>
        <translation>Référence, marque ou produit</translation>
    </message>
    <message>
        <source>Info:</source>
        <translation>Infos&#xa0;:</translation>
    </message>
    <message>
        <source>Double-click to see the piece&apos;s details</source>
        <translation>Double-cliquez pour voir le détail du modèle</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type&#xa0;:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille&#xa0;:</translation>
    </message>
    <message>
        <source>Page Size:</source>
        <translation>Format de page&#xa0;:</translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation>Disposition&#xa0;:</translation>
    </message>
    <message>
        <source>Product:</source>
        <translation>Produit&#xa0;:</translation>
    </message>
    <message>
        <source>O&amp;k</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>Dé&amp;tails</translation>
    </message>
    <message>
        <source>&amp;New Piece</source>
        <translation>&amp;Nouveau modèle</translation>
    </message>
</context>
</TS>
