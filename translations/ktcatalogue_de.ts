<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>KTCatalogueText</name>
    <message>
        <source>a further &apos;%1&apos;; the application reads the first one only and skips this one with everything inside</source>
        <translation>ein weiteres &apos;%1&apos;; die Anwendung liest nur das erste und übergeht dieses mit allem darin</translation>
    </message>
    <message>
        <source>; it belongs into &apos;%1&apos;</source>
        <translation>; es gehört in &apos;%1&apos;</translation>
    </message>
    <message>
        <source>nothing reads %1 in &apos;%2&apos;; the application skips it with everything inside</source>
        <translation>nichts liest %1 in &apos;%2&apos;; die Anwendung übergeht es mit allem darin</translation>
    </message>
    <message>
        <source>neither &apos;art_id&apos; nor &apos;id&apos; is a positive number; no order can name the article</source>
        <translation>weder &apos;art_id&apos; noch &apos;id&apos; ist eine positive Zahl; keine Bestellung kann den Artikel nennen</translation>
    </message>
    <message>
        <source>&apos;art_id&apos; is %1 and &apos;id&apos; is %2; the application takes %3</source>
        <translation>&apos;art_id&apos; ist %1 und &apos;id&apos; ist %2; die Anwendung nimmt %3</translation>
    </message>
    <message>
        <source>there is no &apos;productname&apos;; the application takes &apos;%1&apos;</source>
        <translation>&apos;productname&apos; fehlt; die Anwendung nimmt &apos;%1&apos;</translation>
    </message>
    <message>
        <source>%1 is no known family of price classes; the application bills %2 as it stands</source>
        <translation>%1 ist keine bekannte Familie von Preisklassen; die Anwendung rechnet %2 ab, wie es dasteht</translation>
    </message>
    <message>
        <source>the class of the article</source>
        <translation>die Klasse des Artikels</translation>
    </message>
    <message>
        <source>the arrangement</source>
        <translation>die Anordnung</translation>
    </message>
    <message>
        <source>the class of size</source>
        <translation>die Größenklasse</translation>
    </message>
    <message>
        <source>the orientation</source>
        <translation>die Ausrichtung</translation>
    </message>
    <message>
        <source>the cover</source>
        <translation>der Einband</translation>
    </message>
    <message>
        <source>the binding</source>
        <translation>die Bindung</translation>
    </message>
    <message>
        <source>the paper</source>
        <translation>das Papier</translation>
    </message>
    <message>
        <source>the photo paper</source>
        <translation>das Fotopapier</translation>
    </message>
    <message>
        <source>the material</source>
        <translation>das Material</translation>
    </message>
    <message>
        <source>the content</source>
        <translation>der Inhalt</translation>
    </message>
    <message>
        <source>the list of spot colours</source>
        <translation>die Liste der Sonderfarben</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 is %2, was %3</source>
        <translation>%1 ist %2, war %3</translation>
    </message>
    <message>
        <source>%1 (free)</source>
        <translation>%1 (kostenlos)</translation>
    </message>
    <message>
        <source>%1 (combined transfer)</source>
        <translation>%1 (Sammelversand)</translation>
    </message>
    <message>
        <source>the price class is %1, was %2</source>
        <translation>die Preisklasse ist %1, war %2</translation>
    </message>
    <message>
        <source>the shipping group is %1, was %2</source>
        <translation>die Versandgruppe ist %1, war %2</translation>
    </message>
    <message>
        <source>the product type</source>
        <translation>der Produkttyp</translation>
    </message>
    <message>
        <source>the name</source>
        <translation>der Name</translation>
    </message>
    <message>
        <source>the article is gone</source>
        <translation>den Artikel gibt es nicht mehr</translation>
    </message>
    <message>
        <source>the article is new</source>
        <translation>der Artikel ist neu</translation>
    </message>
    <message>
        <source>article</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>has no valid number</source>
        <translation>hat keine gültige Nummer</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>unknown keyword &apos;%1&apos;, read as %2</source>
        <translation>unbekanntes Schlüsselwort &apos;%1&apos;, gelesen als %2</translation>
    </message>
    <message>
        <source>calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>agenda</source>
        <translation>Agenda</translation>
    </message>
    <message>
        <source>product type</source>
        <translation>Produkttyp</translation>
    </message>
    <message>
        <source>price class</source>
        <translation>Preisklasse</translation>
    </message>
    <message>
        <source>free</source>
        <translation>kostenlos</translation>
    </message>
    <message>
        <source>shipping group</source>
        <translation>Versandgruppe</translation>
    </message>
    <message>
        <source>combined transfer</source>
        <translation>Sammelversand</translation>
    </message>
    <message>
        <source>%1 to %2, step %3: %4 %5</source>
        <translation>%1 bis %2, Schritt %3: %4 %5</translation>
    </message>
    <message>
        <source>choice</source>
        <translation>Wahlmöglichkeit</translation>
    </message>
    <message>
        <source>choices</source>
        <translation>Wahlmöglichkeiten</translation>
    </message>
    <message>
        <source> (not valid)</source>
        <translation> (nicht gültig)</translation>
    </message>
    <message>
        <source> (the last step is not complete)</source>
        <translation> (der letzte Schritt ist nicht vollständig)</translation>
    </message>
    <message>
        <source>page counts</source>
        <translation>Seitenzahlen</translation>
    </message>
    <message>
        <source>%1 pages become %2</source>
        <translation>aus %1 Seiten werden %2</translation>
    </message>
    <message>
        <source>%1 mm at %2 pages</source>
        <translation>%1 mm bei %2 Seiten</translation>
    </message>
    <message>
        <source>spine</source>
        <translation>Buchrücken</translation>
    </message>
    <message>
        <source>page size</source>
        <translation>Seitengröße</translation>
    </message>
    <message>
        <source>%1  %2, with bleed %3</source>
        <translation>%1  %2, mit Beschnitt %3</translation>
    </message>
    <message>
        <source>slipcase cover %1</source>
        <translation>Schuberdecke %1</translation>
    </message>
    <message>
        <source>barcode</source>
        <translation>Barcode</translation>
    </message>
    <message>
        <source>page %1: %2 at %3, %4 mm</source>
        <translation>Seite %1: %2 bei %3, %4 mm</translation>
    </message>
    <message>
        <source>options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>preselected</source>
        <translation>vorausgewählt</translation>
    </message>
    <message>
        <source>not charged</source>
        <translation>nicht berechnet</translation>
    </message>
    <message>
        <source>default choice</source>
        <translation>Vorauswahl</translation>
    </message>
    <message>
        <source>box style</source>
        <translation>Boxvariante</translation>
    </message>
    <message>
        <source>is not finite</source>
        <translation>ist nicht endlich</translation>
    </message>
    <message>
        <source>is out of range</source>
        <translation>liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>is no number</source>
        <translation>ist keine Zahl</translation>
    </message>
    <message>
        <source>is no whole number</source>
        <translation>ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>%1 %2; the application takes %3</source>
        <translation>%1 %2; die Anwendung nimmt %3</translation>
    </message>
    <message>
        <source>; did you mean &apos;%1&apos;?</source>
        <translation>; war &apos;%1&apos; gemeint?</translation>
    </message>
    <message>
        <source>nothing reads %1 of &apos;%2&apos;; the application behaves as if it were not there</source>
        <translation>nichts liest %1 von &apos;%2&apos;; die Anwendung verhält sich, als stünde es nicht da</translation>
    </message>
    <message>
        <source>an empty entry in %1</source>
        <translation>ein leerer Eintrag in %1</translation>
    </message>
    <message>
        <source>%1 is no keyword of %2</source>
        <translation>%1 ist kein Schlüsselwort von %2</translation>
    </message>
    <message>
        <source> (nor is 1 more)</source>
        <translation> (auch 1 weiteres nicht)</translation>
    </message>
    <message>
        <source> (nor are %1 more)</source>
        <translation> (auch %1 weitere nicht)</translation>
    </message>
    <message>
        <source>; the application reads nothing from it</source>
        <translation>; die Anwendung liest nichts daraus</translation>
    </message>
    <message>
        <source>; the application reads it as the default, &apos;%1&apos;</source>
        <translation>; die Anwendung liest es als den Vorgabewert, &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the default: </source>
        <translation>den Vorgabewert: </translation>
    </message>
    <message>
        <source>%1 is neither true nor false; the application takes %2</source>
        <translation>%1 ist weder wahr noch falsch; die Anwendung nimmt %2</translation>
    </message>
    <message>
        <source>%1 is no unit; the application takes the numbers as layout units of 0.1 mm</source>
        <translation>%1 ist keine Einheit; die Anwendung nimmt die Zahlen als Layouteinheiten von 0,1 mm</translation>
    </message>
    <message>
        <source>%1 is no colour; the application takes %2</source>
        <translation>%1 ist keine Farbe; die Anwendung nimmt %2</translation>
    </message>
    <message>
        <source>the barcode has an empty image name; the application skips it</source>
        <translation>der Bildname des Barcodes ist leer; die Anwendung übergeht ihn</translation>
    </message>
    <message>
        <source>the barcode is smaller than one layout unit (0.1 mm); the application skips it</source>
        <translation>der Barcode ist kleiner als eine Layouteinheit (0,1 mm); die Anwendung übergeht ihn</translation>
    </message>
    <message>
        <source>the barcode in line %1 has the same rectangle; the application, which finds a barcode by its rectangle, always takes that one</source>
        <translation>der Barcode in Zeile %1 hat dasselbe Rechteck; die Anwendung findet Barcodes nach ihrem Rechteck und nimmt immer jenen</translation>
    </message>
    <message>
        <source>%1 is no picture below &apos;icons/picshelf&apos; of the resources; the application shows no barcode</source>
        <translation>%1 ist kein Bild unterhalb von &apos;icons/picshelf&apos; der Ressourcen; die Anwendung zeigt keinen Barcode</translation>
    </message>
    <message>
        <source>%1 at %2 on page %3</source>
        <translation>%1 bei %2 auf Seite %3</translation>
    </message>
    <message>
        <source>on page %1, was on page %2</source>
        <translation>auf Seite %1, war auf Seite %2</translation>
    </message>
    <message>
        <source>at %1, was at %2</source>
        <translation>bei %1, war bei %2</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, war %2</translation>
    </message>
    <message>
        <source>the barcode on page %1</source>
        <translation>der Barcode auf Seite %1</translation>
    </message>
    <message>
        <source>the barcode</source>
        <translation>der Barcode</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 ist %2</translation>
    </message>
    <message>
        <source>a barcode is gone, was %1</source>
        <translation>einen Barcode gibt es nicht mehr, war %1</translation>
    </message>
    <message>
        <source>a barcode is new, %1</source>
        <translation>ein Barcode ist neu, %1</translation>
    </message>
    <message>
        <source>%1 stands for the barcode on page %2, was %3</source>
        <translation>%1 steht für den Barcode auf Seite %2, war %3</translation>
    </message>
    <message>
        <source>the file cannot be opened: %1</source>
        <translation>die Datei lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>the file was changed after it had been opened</source>
        <translation>die Datei wurde geändert, nachdem sie geöffnet worden war</translation>
    </message>
    <message>
        <source>%1; the application has no articles from it</source>
        <translation>%1; die Anwendung erhält keine Artikel daraus</translation>
    </message>
    <message>
        <source>; the application refuses the file</source>
        <translation>; die Anwendung weist die Datei ab</translation>
    </message>
    <message>
        <source>the article in line %1 has the number %2 as well; the application finds that one, and this one never</source>
        <translation>der Artikel in Zeile %1 hat auch die Nummer %2; die Anwendung findet jenen, diesen nie</translation>
    </message>
    <message>
        <source>the file was changed while it was read</source>
        <translation>die Datei wurde geändert, während sie gelesen wurde</translation>
    </message>
    <message>
        <source>limit exceeded: </source>
        <translation>Grenze überschritten: </translation>
    </message>
    <message>
        <source>a value of more than %1 KiB</source>
        <translation>ein Wert von mehr als %1 KiB</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>die Datei lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>a NUL character; the file is no text</source>
        <translation>ein NUL-Zeichen; die Datei ist kein Text</translation>
    </message>
    <message>
        <source>a tag, comment or instruction of more than %1 MiB</source>
        <translation>ein Tag, Kommentar oder eine Anweisung von mehr als %1 MiB</translation>
    </message>
    <message>
        <source>a catalogue has no document type declaration</source>
        <translation>ein Katalog hat keine Dokumenttyp-Deklaration</translation>
    </message>
    <message>
        <source>the root element is &apos;%1&apos;, not &apos;%2&apos;</source>
        <translation>das Wurzelelement ist &apos;%1&apos;, nicht &apos;%2&apos;</translation>
    </message>
    <message>
        <source>more than %1 levels of elements</source>
        <translation>mehr als %1 Ebenen von Elementen</translation>
    </message>
    <message>
        <source>more than %1 attributes in one element</source>
        <translation>mehr als %1 Attribute in einem Element</translation>
    </message>
    <message>
        <source>the file cannot be opened or read to its end</source>
        <translation>die Datei lässt sich nicht öffnen oder nicht bis zum Ende lesen</translation>
    </message>
    <message>
        <source>The application has no articles from it. Look at the file&apos;s name and its permissions.</source>
        <translation>Die Anwendung erhält keine Artikel daraus. Zu prüfen sind Name und Rechte der Datei.</translation>
    </message>
    <message>
        <source>the file is no catalogue in well-formed XML</source>
        <translation>die Datei ist kein Katalog in wohlgeformtem XML</translation>
    </message>
    <message>
        <source>The application refuses the whole file, also the articles before the place. What the checker found before it is still reported; what follows it is not looked at.</source>
        <translation>Die Anwendung weist die ganze Datei ab, auch die Artikel vor der Stelle. Was die Prüfung davor gefunden hat, wird noch gemeldet; was folgt, wird nicht angesehen.</translation>
    </message>
    <message>
        <source>the file exceeds a limit of the format</source>
        <translation>die Datei überschreitet eine Grenze des Formats</translation>
    </message>
    <message>
        <source>Levels of elements, attributes of one element and lengths of values are limited, and there are no document type declarations, so that no file costs time or memory out of proportion. The file is refused.</source>
        <translation>Ebenen von Elementen, Attribute eines Elements und Längen von Werten sind begrenzt, und Dokumenttyp-Deklarationen gibt es nicht, damit keine Datei übermäßig Zeit oder Speicher kostet. Die Datei wird abgewiesen.</translation>
    </message>
    <message>
        <source>nothing reads an element in this place</source>
        <translation>nichts liest ein Element an dieser Stelle</translation>
    </message>
    <message>
        <source>The application skips the element with everything inside. It is misspelt, or belongs elsewhere.</source>
        <translation>Die Anwendung übergeht das Element mit allem darin. Es ist falsch geschrieben oder gehört an eine andere Stelle.</translation>
    </message>
    <message>
        <source>nothing reads an attribute</source>
        <translation>nichts liest ein Attribut</translation>
    </message>
    <message>
        <source>The application behaves as if it were not there; where a misspelt attribute was meant, the default of that one counts.</source>
        <translation>Die Anwendung verhält sich, als stünde es nicht da; war ein falsch geschriebenes Attribut gemeint, gilt dessen Vorgabewert.</translation>
    </message>
    <message>
        <source>an element of which only the first one is read stands there again</source>
        <translation>ein Element, von dem nur das erste gelesen wird, steht noch einmal da</translation>
    </message>
    <message>
        <source>Of &apos;forms&apos;, &apos;composition&apos;, &apos;spine&apos; and &apos;barcodes&apos; only the first one in its parent is read. The further ones are skipped, so move their content to the first.</source>
        <translation>Von &apos;forms&apos;, &apos;composition&apos;, &apos;spine&apos; und &apos;barcodes&apos; wird nur das erste im übergeordneten Element gelesen. Die weiteren werden übergangen; ihr Inhalt gehört in das erste.</translation>
    </message>
    <message>
        <source>an attribute means nothing for this kind of article</source>
        <translation>ein Attribut bedeutet bei dieser Art von Artikel nichts</translation>
    </message>
    <message>
        <source>A picture box has no &apos;pieces&apos;, and the advent calendars with printed door backs always have the same number of pages, whatever is written.</source>
        <translation>Eine Fotobox hat kein &apos;pieces&apos;, und die Adventskalender mit bedruckten Türrückseiten haben immer dieselbe Seitenzahl, was auch dasteht.</translation>
    </message>
    <message>
        <source>an article has no positive number</source>
        <translation>ein Artikel hat keine positive Nummer</translation>
    </message>
    <message>
        <source>Neither &apos;art_id&apos; nor &apos;id&apos; is a positive number, so no order can name the article.</source>
        <translation>Weder &apos;art_id&apos; noch &apos;id&apos; ist eine positive Zahl, also kann keine Bestellung den Artikel nennen.</translation>
    </message>
    <message>
        <source>two articles of a file have the same number</source>
        <translation>zwei Artikel einer Datei haben dieselbe Nummer</translation>
    </message>
    <message>
        <source>Who looks for the article by its number finds the first one only.</source>
        <translation>Wer den Artikel nach seiner Nummer sucht, findet nur den ersten.</translation>
    </message>
    <message>
        <source>&apos;art_id&apos; and &apos;id&apos; are both positive and differ</source>
        <translation>&apos;art_id&apos; und &apos;id&apos; sind beide positiv und verschieden</translation>
    </message>
    <message>
        <source>The application takes &apos;art_id&apos; and never looks at &apos;id&apos;. Remove one of the two.</source>
        <translation>Die Anwendung nimmt &apos;art_id&apos; und sieht &apos;id&apos; nie an. Eines von beiden gehört entfernt.</translation>
    </message>
    <message>
        <source>an article has no product name</source>
        <translation>ein Artikel hat keinen Produktnamen</translation>
    </message>
    <message>
        <source>Without &apos;productname&apos; the application takes the article for the album that is the default.</source>
        <translation>Ohne &apos;productname&apos; hält die Anwendung den Artikel für das vorgegebene Album.</translation>
    </message>
    <message>
        <source>a classification has an entry that is no keyword</source>
        <translation>eine Einordnung hat einen Eintrag, der kein Schlüsselwort ist</translation>
    </message>
    <message>
        <source>The entry silently counts as the default of its class, alone or in union with the other entries. Letter case and blanks around an entry do not matter.</source>
        <translation>Der Eintrag gilt stillschweigend als Vorgabewert seiner Klasse, allein oder zusammen mit den anderen Einträgen. Groß- und Kleinschreibung und Leerzeichen um einen Eintrag zählen nicht.</translation>
    </message>
    <message>
        <source>a price class belongs to no known family</source>
        <translation>eine Preisklasse gehört zu keiner bekannten Familie</translation>
    </message>
    <message>
        <source>The letters before the number name the family. The application bills the code as it stands, but knows no kind of add-on, album or calendar for it.</source>
        <translation>Die Buchstaben vor der Zahl nennen die Familie. Die Anwendung rechnet den Code ab, wie er dasteht, kennt dafür aber keine Art von Zusatz, Album oder Kalender.</translation>
    </message>
    <message>
        <source>a shipping group is no number</source>
        <translation>eine Versandgruppe ist keine Zahl</translation>
    </message>
    <message>
        <source>The article is read as one of no shipping group.</source>
        <translation>Der Artikel wird als einer ohne Versandgruppe gelesen.</translation>
    </message>
    <message>
        <source>a number is unreadable, not finite or out of range</source>
        <translation>eine Zahl ist unlesbar, nicht endlich oder außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>The default counts in its place. Numbers are written with a decimal point and without a unit; whole numbers have 32 bits, and lengths are finite in layout units of 0.1 mm, too.</source>
        <translation>An ihrer Stelle gilt der Vorgabewert. Zahlen stehen mit Dezimalpunkt und ohne Einheit; ganze Zahlen haben 32 Bit, und Längen sind auch in Layouteinheiten von 0,1 mm endlich.</translation>
    </message>
    <message>
        <source>a text is neither true nor false</source>
        <translation>ein Text ist weder wahr noch falsch</translation>
    </message>
    <message>
        <source>Only &apos;true&apos;, &apos;false&apos;, &apos;1&apos; and &apos;0&apos; are read, in any letter case; everything else counts as the default.</source>
        <translation>Gelesen werden nur &apos;true&apos;, &apos;false&apos;, &apos;1&apos; und &apos;0&apos;, groß oder klein; alles andere gilt als Vorgabewert.</translation>
    </message>
    <message>
        <source>a unit of length is unknown</source>
        <translation>eine Längeneinheit ist unbekannt</translation>
    </message>
    <message>
        <source>The application takes the numbers as layout units of 0.1 mm. Known are &apos;mm&apos;, &apos;cm&apos;, &apos;inch&apos;, &apos;pt&apos; and &apos;layoutunit&apos;, one at a time.</source>
        <translation>Die Anwendung nimmt die Zahlen als Layouteinheiten von 0,1 mm. Bekannt sind &apos;mm&apos;, &apos;cm&apos;, &apos;inch&apos;, &apos;pt&apos; und &apos;layoutunit&apos;, jeweils eine.</translation>
    </message>
    <message>
        <source>a colour is unknown</source>
        <translation>eine Farbe ist unbekannt</translation>
    </message>
    <message>
        <source>The option gets no swatch. Colours are &apos;#RGB&apos;, &apos;#RRGGBB&apos;, &apos;#AARRGGBB&apos; or SVG colour names.</source>
        <translation>Die Option erhält kein Farbfeld. Farben sind &apos;#RGB&apos;, &apos;#RRGGBB&apos;, &apos;#AARRGGBB&apos; oder Farbnamen von SVG.</translation>
    </message>
    <message>
        <source>page counts are below 1 or beyond the largest number</source>
        <translation>Seitenzahlen liegen unter 1 oder über der größten Zahl</translation>
    </message>
    <message>
        <source>Page counts below 1 are not valid, and what &apos;pages&apos; times &apos;pieces&apos; has beyond 32 bits is cut off.</source>
        <translation>Seitenzahlen unter 1 sind nicht gültig, und was &apos;pages&apos; mal &apos;pieces&apos; über 32 Bit hinaus ergibt, wird abgeschnitten.</translation>
    </message>
    <message>
        <source>the least page count exceeds the highest one</source>
        <translation>die kleinste Seitenzahl übersteigt die größte</translation>
    </message>
    <message>
        <source>The page counts are not valid; every wish becomes the least page count.</source>
        <translation>Die Seitenzahlen sind nicht gültig; jeder Wunsch wird zur kleinsten Seitenzahl.</translation>
    </message>
    <message>
        <source>the page step is negative</source>
        <translation>der Seitenschritt ist negativ</translation>
    </message>
    <message>
        <source>The page counts are not valid, and their list runs downwards.</source>
        <translation>Die Seitenzahlen sind nicht gültig, und ihre Liste läuft abwärts.</translation>
    </message>
    <message>
        <source>a range of page counts has no step</source>
        <translation>ein Bereich von Seitenzahlen hat keinen Schritt</translation>
    </message>
    <message>
        <source>Without &apos;page_step&apos; the count does not step: only the least page count can be had, whatever &apos;max_pages&apos; says.</source>
        <translation>Ohne &apos;page_step&apos; gibt es keine Schritte: Zu haben ist nur die kleinste Seitenzahl, was auch immer &apos;max_pages&apos; sagt.</translation>
    </message>
    <message>
        <source>the range of page counts is no multiple of the step</source>
        <translation>der Bereich der Seitenzahlen ist kein Vielfaches des Schritts</translation>
    </message>
    <message>
        <source>The highest page count is never reached, and a wish for it is rounded up to a count beyond it.</source>
        <translation>Die größte Seitenzahl wird nie erreicht, und ein Wunsch danach wird auf eine Seitenzahl darüber aufgerundet.</translation>
    </message>
    <message>
        <source>a spine grows with packages of pages, but there is no page step</source>
        <translation>ein Buchrücken wächst mit Seitenpaketen, aber es gibt keinen Seitenschritt</translation>
    </message>
    <message>
        <source>Packages are counted in page steps. Without one the spine keeps its base width.</source>
        <translation>Pakete werden in Seitenschritten gezählt. Ohne Schritt behält der Rücken seine Grundbreite.</translation>
    </message>
    <message>
        <source>an option has no key or no value</source>
        <translation>eine Option hat keinen Schlüssel oder keinen Wert</translation>
    </message>
    <message>
        <source>The application skips the option; nobody can choose it.</source>
        <translation>Die Anwendung übergeht die Option; niemand kann sie wählen.</translation>
    </message>
    <message>
        <source>key and value of a compound option differ in their number of parts</source>
        <translation>Schlüssel und Wert einer zusammengesetzten Option haben verschieden viele Teile</translation>
    </message>
    <message>
        <source>Parts are separated by &apos;;&apos;. The order text and the production form leave the whole option out.</source>
        <translation>Teile werden durch &apos;;&apos; getrennt. Bestelltext und Produktionsform lassen die ganze Option weg.</translation>
    </message>
    <message>
        <source>a key or value does not survive the MCF form or the order text</source>
        <translation>ein Schlüssel oder Wert übersteht die MCF-Form oder den Bestelltext nicht</translation>
    </message>
    <message>
        <source>&apos;,&apos;, &apos;:&apos;, &apos;|&apos; and &apos;+&apos; separate the pairs of these forms and their parts, &apos;;&apos; those of the order text, and &apos;%1&apos; and &apos;%2&apos; are filled in. What is read back is not what was chosen.</source>
        <translation>&apos;,&apos;, &apos;:&apos;, &apos;|&apos; und &apos;+&apos; trennen die Paare dieser Formen und ihre Teile, &apos;;&apos; die des Bestelltexts, und &apos;%1&apos; und &apos;%2&apos; werden ausgefüllt. Zurückgelesen wird nicht, was gewählt war.</translation>
    </message>
    <message>
        <source>an option is there twice</source>
        <translation>eine Option steht zweimal da</translation>
    </message>
    <message>
        <source>Key and value name an option, so nobody can tell the second one from the first. Lists show both.</source>
        <translation>Schlüssel und Wert benennen eine Option, also kann niemand die zweite von der ersten unterscheiden. Listen zeigen beide.</translation>
    </message>
    <message>
        <source>several options of one key are preselected</source>
        <translation>mehrere Optionen eines Schlüssels sind vorausgewählt</translation>
    </message>
    <message>
        <source>The last one is the default choice.</source>
        <translation>Die letzte gilt als Vorauswahl.</translation>
    </message>
    <message>
        <source>a barcode is dropped</source>
        <translation>ein Barcode entfällt</translation>
    </message>
    <message>
        <source>A barcode without an image name, or smaller than one layout unit (0.1 mm), is skipped.</source>
        <translation>Ein Barcode ohne Bildnamen oder kleiner als eine Layouteinheit (0,1 mm) wird übergangen.</translation>
    </message>
    <message>
        <source>two barcodes have the same rectangle</source>
        <translation>zwei Barcodes haben dasselbe Rechteck</translation>
    </message>
    <message>
        <source>Barcodes are found and replaced by their rectangles, whatever their pages, so only the first one counts.</source>
        <translation>Barcodes werden nach ihrem Rechteck gefunden und ersetzt, gleich auf welcher Seite, also zählt nur der erste.</translation>
    </message>
    <message>
        <source>the placeholder image of a barcode cannot be loaded</source>
        <translation>das Platzhalterbild eines Barcodes lässt sich nicht laden</translation>
    </message>
    <message>
        <source>It is missing, lies outside &apos;icons/picshelf&apos; of the resources, or is no picture of at most 64 megapixels. The application shows no barcode.</source>
        <translation>Es fehlt, liegt außerhalb von &apos;icons/picshelf&apos; der Ressourcen oder ist kein Bild von höchstens 64 Megapixeln. Die Anwendung zeigt keinen Barcode.</translation>
    </message>
    <message>
        <source>%1 to %2, step %3</source>
        <translation>%1 bis %2, Schritt %3</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>an article is gone</source>
        <translation>einen Artikel gibt es nicht mehr</translation>
    </message>
    <message>
        <source>Saved projects and orders name the article by its number and find nothing. Keep it until nobody uses it any more.</source>
        <translation>Gespeicherte Projekte und Bestellungen nennen den Artikel nach seiner Nummer und finden nichts. Er sollte bleiben, bis ihn niemand mehr verwendet.</translation>
    </message>
    <message>
        <source>a number stands for another class of article</source>
        <translation>eine Nummer steht für eine andere Klasse von Artikel</translation>
    </message>
    <message>
        <source>A saved book opens as something else. Give the new product a number of its own.</source>
        <translation>Ein gespeichertes Buch öffnet sich als etwas anderes. Das neue Produkt braucht eine eigene Nummer.</translation>
    </message>
    <message>
        <source>an article has another arrangement</source>
        <translation>ein Artikel hat eine andere Anordnung</translation>
    </message>
    <message>
        <source>The editor lays out a saved project in another way. Give the new product a number of its own.</source>
        <translation>Der Editor setzt ein gespeichertes Projekt anders. Das neue Produkt braucht eine eigene Nummer.</translation>
    </message>
    <message>
        <source>all options of a key are gone</source>
        <translation>alle Optionen eines Schlüssels sind weggefallen</translation>
    </message>
    <message>
        <source>Saved choices of the key are refused. Where the key was renamed, saved orders must be, too.</source>
        <translation>Gespeicherte Wahlen des Schlüssels werden abgewiesen. Wurde der Schlüssel umbenannt, gilt das auch für gespeicherte Bestellungen.</translation>
    </message>
    <message>
        <source>an option is gone, its key has others</source>
        <translation>eine Option ist weggefallen, ihr Schlüssel hat andere</translation>
    </message>
    <message>
        <source>Saved orders with the option are refused. Letters and case of key and value count.</source>
        <translation>Gespeicherte Bestellungen mit der Option werden abgewiesen. Buchstaben und Schreibung von Schlüssel und Wert zählen.</translation>
    </message>
    <message>
        <source>page counts are gone</source>
        <translation>Seitenzahlen sind weggefallen</translation>
    </message>
    <message>
        <source>A saved project with such a count can only be ordered with more pages or fewer.</source>
        <translation>Ein gespeichertes Projekt mit einer solchen Seitenzahl lässt sich nur mit mehr oder weniger Seiten bestellen.</translation>
    </message>
    <message>
        <source>the page counts are no longer valid</source>
        <translation>die Seitenzahlen sind nicht mehr gültig</translation>
    </message>
    <message>
        <source>The range is inverted, has no step or a negative one, and the application offers the least count at best. &apos;check&apos; tells what is wrong with it.</source>
        <translation>Der Bereich ist umgekehrt, hat keinen oder einen negativen Schritt, und die Anwendung bietet höchstens die kleinste Seitenzahl an. &apos;check&apos; sagt, was daran falsch ist.</translation>
    </message>
    <message>
        <source>the size of a page type is gone</source>
        <translation>die Größe eines Seitentyps ist weggefallen</translation>
    </message>
    <message>
        <source>A saved project has such pages, and the application no longer knows how large they are.</source>
        <translation>Ein gespeichertes Projekt hat solche Seiten, und die Anwendung weiß nicht mehr, wie groß sie sind.</translation>
    </message>
    <message>
        <source>an article is billed under another price class</source>
        <translation>ein Artikel wird unter einer anderen Preisklasse abgerechnet</translation>
    </message>
    <message>
        <source>Saved orders cost what the price list says of the new code. Codes that begin with 0 are free.</source>
        <translation>Gespeicherte Bestellungen kosten, was die Preisliste zum neuen Code sagt. Codes, die mit 0 beginnen, sind kostenlos.</translation>
    </message>
    <message>
        <source>an article is shipped with another group</source>
        <translation>ein Artikel wird mit einer anderen Gruppe versandt</translation>
    </message>
    <message>
        <source>What it is shipped with, and what that costs, changes for saved orders as well.</source>
        <translation>Womit er versandt wird und was das kostet, ändert sich auch für gespeicherte Bestellungen.</translation>
    </message>
    <message>
        <source>an option that was free is charged</source>
        <translation>eine Option, die kostenlos war, wird berechnet</translation>
    </message>
    <message>
        <source>Saved orders with the option become dearer.</source>
        <translation>Gespeicherte Bestellungen mit der Option werden teurer.</translation>
    </message>
    <message>
        <source>an option that was charged is free</source>
        <translation>eine Option, die berechnet wurde, ist kostenlos</translation>
    </message>
    <message>
        <source>Orders with the option are no longer billed for it.</source>
        <translation>Bestellungen mit der Option werden nicht mehr dafür berechnet.</translation>
    </message>
    <message>
        <source>another option of a key is preselected</source>
        <translation>eine andere Option eines Schlüssels ist vorausgewählt</translation>
    </message>
    <message>
        <source>Who chooses nothing gets something else, perhaps at another price. Of several preselected options of a key the last one counts.</source>
        <translation>Wer nichts wählt, erhält etwas anderes, vielleicht zu einem anderen Preis. Von mehreren vorausgewählten Optionen eines Schlüssels gilt die letzte.</translation>
    </message>
    <message>
        <source>an option is preselected where none was</source>
        <translation>eine Option ist vorausgewählt, wo es keine war</translation>
    </message>
    <message>
        <source>Who chooses nothing gets the option and may pay for it.</source>
        <translation>Wer nichts wählt, erhält die Option und zahlt womöglich dafür.</translation>
    </message>
    <message>
        <source>no option of a key is preselected any more</source>
        <translation>keine Option eines Schlüssels ist mehr vorausgewählt</translation>
    </message>
    <message>
        <source>Who chooses nothing no longer gets the option; orders go without it, or wait for a choice.</source>
        <translation>Wer nichts wählt, erhält die Option nicht mehr; Bestellungen kommen ohne sie oder warten auf eine Wahl.</translation>
    </message>
    <message>
        <source>order texts carry another product type</source>
        <translation>Bestelltexte tragen einen anderen Produkttyp</translation>
    </message>
    <message>
        <source>The application&apos;s registries and production know the article by it. Variants of one album, such as ALB9_30 and ALB9_40, are one product type.</source>
        <translation>Die Register der Anwendung und die Produktion kennen den Artikel danach. Varianten eines Albums wie ALB9_30 und ALB9_40 sind ein Produkttyp.</translation>
    </message>
    <message>
        <source>an article has another class of size</source>
        <translation>ein Artikel hat eine andere Größenklasse</translation>
    </message>
    <message>
        <source>Layouts and font sizes are chosen by it.</source>
        <translation>Layouts und Schriftgrößen richten sich danach.</translation>
    </message>
    <message>
        <source>an article has another orientation</source>
        <translation>ein Artikel hat eine andere Ausrichtung</translation>
    </message>
    <message>
        <source>Layouts are chosen by it.</source>
        <translation>Layouts richten sich danach.</translation>
    </message>
    <message>
        <source>an article has another kind of cover</source>
        <translation>ein Artikel hat eine andere Art von Einband</translation>
    </message>
    <message>
        <source>Saved orders are made with the new one.</source>
        <translation>Gespeicherte Bestellungen werden mit der neuen gefertigt.</translation>
    </message>
    <message>
        <source>an article is bound in another way</source>
        <translation>ein Artikel wird anders gebunden</translation>
    </message>
    <message>
        <source>Saved orders are bound in the new way.</source>
        <translation>Gespeicherte Bestellungen werden auf die neue Art gebunden.</translation>
    </message>
    <message>
        <source>an article is printed on another paper</source>
        <translation>ein Artikel wird auf anderem Papier gedruckt</translation>
    </message>
    <message>
        <source>Saved orders are printed on the new one.</source>
        <translation>Gespeicherte Bestellungen werden auf dem neuen gedruckt.</translation>
    </message>
    <message>
        <source>photos are printed on another paper</source>
        <translation>Fotos werden auf anderem Papier gedruckt</translation>
    </message>
    <message>
        <source>an article is made of another material</source>
        <translation>ein Artikel ist aus anderem Material</translation>
    </message>
    <message>
        <source>Saved orders are made of the new one.</source>
        <translation>Gespeicherte Bestellungen werden aus dem neuen gefertigt.</translation>
    </message>
    <message>
        <source>an article has another kind of content</source>
        <translation>ein Artikel hat eine andere Art von Inhalt</translation>
    </message>
    <message>
        <source>What the application prepares for production changes.</source>
        <translation>Was die Anwendung für die Produktion vorbereitet, ändert sich.</translation>
    </message>
    <message>
        <source>an article can be finished with other spot colours</source>
        <translation>ein Artikel kann mit anderen Sonderfarben veredelt werden</translation>
    </message>
    <message>
        <source>What production prints on top changes; options of a colour that is gone no longer go with it.</source>
        <translation>Was die Produktion darüber druckt, ändert sich; Optionen einer weggefallenen Farbe passen nicht mehr dazu.</translation>
    </message>
    <message>
        <source>a page has another size</source>
        <translation>eine Seite hat eine andere Größe</translation>
    </message>
    <message>
        <source>Saved layouts no longer fit the page that is printed.</source>
        <translation>Gespeicherte Layouts passen nicht mehr auf die gedruckte Seite.</translation>
    </message>
    <message>
        <source>a page has other bleed margins</source>
        <translation>eine Seite hat andere Beschnittränder</translation>
    </message>
    <message>
        <source>The page keeps its size, but what is printed around it changes.</source>
        <translation>Die Seite behält ihre Größe, aber was um sie herum gedruckt wird, ändert sich.</translation>
    </message>
    <message>
        <source>a slipcase cover is added, gone or has another size</source>
        <translation>eine Schuberdecke kommt hinzu, fällt weg oder hat eine andere Größe</translation>
    </message>
    <message>
        <source>The page stays the same; its slipcase does not, and saved slipcase covers no longer fit.</source>
        <translation>Die Seite bleibt dieselbe, ihr Schuber nicht, und gespeicherte Schuberdecken passen nicht mehr.</translation>
    </message>
    <message>
        <source>an article gets a spine</source>
        <translation>ein Artikel erhält einen Buchrücken</translation>
    </message>
    <message>
        <source>Covers become wider, and saved projects have nothing on their spine.</source>
        <translation>Einbände werden breiter, und gespeicherte Projekte haben nichts auf dem Rücken.</translation>
    </message>
    <message>
        <source>an article loses its spine</source>
        <translation>ein Artikel verliert seinen Buchrücken</translation>
    </message>
    <message>
        <source>Covers become narrower, and what saved projects have on their spine is lost.</source>
        <translation>Einbände werden schmaler, und was gespeicherte Projekte auf dem Rücken haben, geht verloren.</translation>
    </message>
    <message>
        <source>the spine is wider or narrower at some page count</source>
        <translation>der Buchrücken ist bei einer Seitenzahl breiter oder schmaler</translation>
    </message>
    <message>
        <source>Compared at every page count that is valid in both catalogues, whichever attribute it comes from, the step of the page counts among them.</source>
        <translation>Verglichen wird bei jeder Seitenzahl, die in beiden Katalogen gültig ist, gleich aus welchem Attribut es kommt, auch aus dem Seitenschritt.</translation>
    </message>
    <message>
        <source>the additional width on each side of the spine is another</source>
        <translation>die zusätzliche Breite auf jeder Seite des Buchrückens ist eine andere</translation>
    </message>
    <message>
        <source>Covers are reduced by it, and the text on the spine has less room or more.</source>
        <translation>Einbände werden darum verkleinert, und der Text auf dem Rücken hat weniger oder mehr Platz.</translation>
    </message>
    <message>
        <source>there is a further barcode</source>
        <translation>es gibt einen weiteren Barcode</translation>
    </message>
    <message>
        <source>It may cover what saved projects have in its place.</source>
        <translation>Er kann verdecken, was gespeicherte Projekte an seiner Stelle haben.</translation>
    </message>
    <message>
        <source>a barcode is gone</source>
        <translation>ein Barcode ist weggefallen</translation>
    </message>
    <message>
        <source>Production may look for it.</source>
        <translation>Die Produktion sucht womöglich danach.</translation>
    </message>
    <message>
        <source>a barcode has another place, size or page</source>
        <translation>ein Barcode hat eine andere Stelle, Größe oder Seite</translation>
    </message>
    <message>
        <source>Production may look for it in the old place.</source>
        <translation>Die Produktion sucht ihn womöglich an der alten Stelle.</translation>
    </message>
    <message>
        <source>another image stands for a barcode</source>
        <translation>ein anderes Bild steht für einen Barcode</translation>
    </message>
    <message>
        <source>The placeholder in the editor changes, not the barcode.</source>
        <translation>Der Platzhalter im Editor ändert sich, nicht der Barcode.</translation>
    </message>
    <message>
        <source>the parts of a compound option are grouped in another way</source>
        <translation>die Teile einer zusammengesetzten Option sind anders gruppiert</translation>
    </message>
    <message>
        <source>The production form stays the same under another key: the text of MCF changes, and saved choices of the old key are refused. The option that is gone is told as well.</source>
        <translation>Die Produktionsform bleibt unter einem anderen Schlüssel dieselbe: Der MCF-Text ändert sich, und gespeicherte Wahlen des alten Schlüssels werden abgewiesen. Die weggefallene Option wird ebenfalls gemeldet.</translation>
    </message>
    <message>
        <source>there is a new article</source>
        <translation>es gibt einen neuen Artikel</translation>
    </message>
    <message>
        <source>Articles are known by their numbers: with another number, an article is gone and a new one there.</source>
        <translation>Artikel kennt man an ihrer Nummer: Mit einer anderen Nummer ist ein Artikel weggefallen und ein neuer da.</translation>
    </message>
    <message>
        <source>there are options of a new key</source>
        <translation>es gibt Optionen eines neuen Schlüssels</translation>
    </message>
    <message>
        <source>Saved orders have no choice of it, unless an option is preselected, which is told as well.</source>
        <translation>Gespeicherte Bestellungen haben dafür keine Wahl, es sei denn, eine Option ist vorausgewählt, was ebenfalls gemeldet wird.</translation>
    </message>
    <message>
        <source>a key has a further option</source>
        <translation>ein Schlüssel hat eine weitere Option</translation>
    </message>
    <message>
        <source>Nothing changes for saved orders.</source>
        <translation>Für gespeicherte Bestellungen ändert sich nichts.</translation>
    </message>
    <message>
        <source>there are new page counts</source>
        <translation>es gibt neue Seitenzahlen</translation>
    </message>
    <message>
        <source>the page counts are valid, and were not</source>
        <translation>die Seitenzahlen sind gültig und waren es nicht</translation>
    </message>
    <message>
        <source>The application offers the whole range.</source>
        <translation>Die Anwendung bietet den ganzen Bereich an.</translation>
    </message>
    <message>
        <source>there is a size for a further page type</source>
        <translation>es gibt eine Größe für einen weiteren Seitentyp</translation>
    </message>
    <message>
        <source>The application can make such pages.</source>
        <translation>Die Anwendung kann solche Seiten erzeugen.</translation>
    </message>
    <message>
        <source>an article has another name</source>
        <translation>ein Artikel hat einen anderen Namen</translation>
    </message>
    <message>
        <source>Shop and confirmations show the new name, also for old orders.</source>
        <translation>Shop und Bestätigungen zeigen den neuen Namen, auch bei alten Bestellungen.</translation>
    </message>
    <message>
        <source>a key has another name</source>
        <translation>ein Schlüssel hat einen anderen Namen</translation>
    </message>
    <message>
        <source>Dialogs list options in the order of these names.</source>
        <translation>Dialoge führen Optionen in der Reihenfolge dieser Namen auf.</translation>
    </message>
    <message>
        <source>an option has another name</source>
        <translation>eine Option hat einen anderen Namen</translation>
    </message>
    <message>
        <source>Key and value, which orders carry, stay the same.</source>
        <translation>Schlüssel und Wert, die in Bestellungen stehen, bleiben dieselben.</translation>
    </message>
    <message>
        <source>the swatch of an option has another colour</source>
        <translation>das Farbfeld einer Option hat eine andere Farbe</translation>
    </message>
    <message>
        <source>Two spellings of one colour are no difference.</source>
        <translation>Zwei Schreibungen einer Farbe sind kein Unterschied.</translation>
    </message>
    <message>
        <source>an option has another preview image</source>
        <translation>eine Option hat ein anderes Vorschaubild</translation>
    </message>
    <message>
        <source>The image must be there when the catalogue is.</source>
        <translation>Das Bild muss da sein, wenn der Katalog es ist.</translation>
    </message>
    <message>
        <source>options are offered in another editor</source>
        <translation>Optionen werden in einem anderen Editor angeboten</translation>
    </message>
    <message>
        <source>Customers find them in another place.</source>
        <translation>Kunden finden sie an einer anderen Stelle.</translation>
    </message>
    <message>
        <source>options are listed in another order</source>
        <translation>Optionen stehen in einer anderen Reihenfolge</translation>
    </message>
    <message>
        <source>Compared are the options that both catalogues have. The order of articles and attributes never counts.</source>
        <translation>Verglichen werden die Optionen, die beide Kataloge haben. Die Reihenfolge von Artikeln und Attributen zählt nie.</translation>
    </message>
    <message>
        <source>an option stands there more often, or less often, than before</source>
        <translation>eine Option steht öfter oder seltener da als zuvor</translation>
    </message>
    <message>
        <source>Lists show each one; orders cannot tell them apart.</source>
        <translation>Listen zeigen jede; Bestellungen können sie nicht unterscheiden.</translation>
    </message>
    <message>
        <source>the highest page count is written otherwise, the valid ones stay</source>
        <translation>die größte Seitenzahl steht anders da, die gültigen bleiben</translation>
    </message>
    <message>
        <source>A range that is no multiple of its step ends below its highest page count. A wish for that one is rounded up beyond it.</source>
        <translation>Ein Bereich, der kein Vielfaches des Schritts ist, endet unter seiner größten Seitenzahl. Ein Wunsch danach wird darüber hinaus aufgerundet.</translation>
    </message>
    <message>
        <source>what customers read changes</source>
        <translation>was Kunden lesen, ändert sich</translation>
    </message>
    <message>
        <source>there is more to order</source>
        <translation>es gibt mehr zu bestellen</translation>
    </message>
    <message>
        <source>what is printed and bound changes</source>
        <translation>was gedruckt und gebunden wird, ändert sich</translation>
    </message>
    <message>
        <source>what is billed changes</source>
        <translation>was abgerechnet wird, ändert sich</translation>
    </message>
    <message>
        <source>something that saved projects use is gone</source>
        <translation>etwas, das gespeicherte Projekte verwenden, ist weggefallen</translation>
    </message>
    <message>
        <source>the file says that it is in UTF-16, but it is not</source>
        <translation>die Datei nennt sich UTF-16, ist es aber nicht</translation>
    </message>
    <message>
        <source>the encoding &apos;%1&apos; is none of UTF-8, UTF-16, ISO-8859-1, ISO-8859-15 and windows-1252</source>
        <translation>die Kodierung &apos;%1&apos; ist keine von UTF-8, UTF-16, ISO-8859-1, ISO-8859-15 und windows-1252</translation>
    </message>
    <message>
        <source>this machine cannot read %1</source>
        <translation>diese Maschine kann %1 nicht lesen</translation>
    </message>
    <message>
        <source>the file ends inside of a character of %1</source>
        <translation>die Datei endet innerhalb eines Zeichens von %1</translation>
    </message>
    <message>
        <source>the byte 0x%1 is no character of %2</source>
        <translation>das Byte 0x%1 ist kein Zeichen von %2</translation>
    </message>
    <message>
        <source>the application writes the option as %1 in %2, which reads back as %3</source>
        <translation>die Anwendung schreibt die Option als %1 in %2, was sich als %3 zurückliest</translation>
    </message>
    <message>
        <source>%1 and %2 have different numbers of parts; the order text and the production form leave the option out</source>
        <translation>%1 und %2 haben verschieden viele Teile; Bestelltext und Produktionsform lassen die Option weg</translation>
    </message>
    <message>
        <source>the order text</source>
        <translation>der Bestelltext</translation>
    </message>
    <message>
        <source>the option has no %1; the application skips it</source>
        <translation>der Option fehlt %1; die Anwendung übergeht sie</translation>
    </message>
    <message>
        <source>key</source>
        <translation>der Schlüssel</translation>
    </message>
    <message>
        <source>value</source>
        <translation>der Wert</translation>
    </message>
    <message>
        <source>%1 with %2 stands in line %3 already; the application lists it again, but an order cannot tell the two</source>
        <translation>%1 mit %2 steht schon in Zeile %3; die Anwendung führt es noch einmal auf, aber eine Bestellung kann beide nicht unterscheiden</translation>
    </message>
    <message>
        <source>%1 options of %2 are preselected; the application takes the last one, %3</source>
        <translation>%1 Optionen von %2 sind vorausgewählt; die Anwendung nimmt die letzte, %3</translation>
    </message>
    <message>
        <source>was none</source>
        <translation>war leer</translation>
    </message>
    <message>
        <source>was %1</source>
        <translation>war %1</translation>
    </message>
    <message>
        <source>%1 is gone with all its options: %2</source>
        <translation>%1 ist mit allen Optionen weggefallen: %2</translation>
    </message>
    <message>
        <source>%1 can be chosen: %2</source>
        <translation>%1 ist wählbar: %2</translation>
    </message>
    <message>
        <source>%1 is gone from %2; offered: %3</source>
        <translation>%1 ist aus %2 weggefallen; angeboten: %3</translation>
    </message>
    <message>
        <source>%1 is new in %2%3</source>
        <translation>%1 ist neu in %2%3</translation>
    </message>
    <message>
        <source>, free</source>
        <translation>, kostenlos</translation>
    </message>
    <message>
        <source>%1 comes with %2 unless something else is chosen, was without%3</source>
        <translation>%1 kommt mit %2, wenn nichts anderes gewählt wird, war ohne%3</translation>
    </message>
    <message>
        <source>; it is charged</source>
        <translation>; sie wird berechnet</translation>
    </message>
    <message>
        <source>%1 comes without a choice, was %2</source>
        <translation>%1 kommt ohne Wahl, war %2</translation>
    </message>
    <message>
        <source>%1 comes with %2 unless something else is chosen, was %3%4</source>
        <translation>%1 kommt mit %2, wenn nichts anderes gewählt wird, war %3%4</translation>
    </message>
    <message>
        <source>, which is gone</source>
        <translation>, die weggefallen ist</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>charged</source>
        <translation>berechnet</translation>
    </message>
    <message>
        <source>%1 is free, was charged</source>
        <translation>%1 ist kostenlos, wurde berechnet</translation>
    </message>
    <message>
        <source>%1 is charged, was free</source>
        <translation>%1 wird berechnet, war kostenlos</translation>
    </message>
    <message>
        <source>%1 of %2 stands in the list %3, was %4</source>
        <translation>%1 von %2 steht %3 in der Liste, stand %4</translation>
    </message>
    <message>
        <source>once</source>
        <translation>einmal</translation>
    </message>
    <message>
        <source>%1 times</source>
        <translation>%1-mal</translation>
    </message>
    <message>
        <source>in MCF %1 becomes %2; production gets the same, %3</source>
        <translation>in MCF wird aus %1 %2; die Produktion erhält dasselbe, %3</translation>
    </message>
    <message>
        <source> for %1</source>
        <translation> für %1</translation>
    </message>
    <message>
        <source>%1 of %2%3 is %4, %5</source>
        <translation>%1 von %2%3 ist %4, %5</translation>
    </message>
    <message>
        <source>the editor</source>
        <translation>der Editor</translation>
    </message>
    <message>
        <source>the colour</source>
        <translation>die Farbe</translation>
    </message>
    <message>
        <source>the preview</source>
        <translation>die Vorschau</translation>
    </message>
    <message>
        <source>%1 of %2 of %3 is %4, %5</source>
        <translation>%1 von %2 von %3 ist %4, %5</translation>
    </message>
    <message>
        <source>%1 lists %2; was %3</source>
        <translation>%1 führt %2 auf; war %3</translation>
    </message>
    <message>
        <source>the options are listed in the order %1; was %2</source>
        <translation>die Optionen stehen in der Reihenfolge %1; war %2</translation>
    </message>
    <message>
        <source>is not in the catalogue</source>
        <translation>ist nicht im Katalog</translation>
    </message>
    <message>
        <source>was saved with %1, which is no key and value</source>
        <translation>wurde mit %1 gespeichert, was kein Schlüssel mit Wert ist</translation>
    </message>
    <message>
        <source>cannot have %1 pages; no page count is valid</source>
        <translation>kann nicht %1 Seiten haben; keine Seitenzahl ist gültig</translation>
    </message>
    <message>
        <source>cannot have %1 pages; the nearest valid page counts: %2</source>
        <translation>kann nicht %1 Seiten haben; die nächsten gültigen Seitenzahlen: %2</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>does not offer &apos;%1&apos; for &apos;%2&apos;</source>
        <translation>bietet &apos;%1&apos; für &apos;%2&apos; nicht an</translation>
    </message>
    <message>
        <source>has no option &apos;%1&apos;</source>
        <translation>hat keine Option &apos;%1&apos;</translation>
    </message>
    <message>
        <source>; it offers none</source>
        <translation>; es bietet keine an</translation>
    </message>
    <message>
        <source>; offered: </source>
        <translation>; angeboten: </translation>
    </message>
    <message>
        <source>top %1, bottom %2, left %3, right %4 mm</source>
        <translation>oben %1, unten %2, links %3, rechts %4 mm</translation>
    </message>
    <message>
        <source>no page type</source>
        <translation>ohne Seitentyp</translation>
    </message>
    <message>
        <source>page %1 is gone, was %2</source>
        <translation>Seite %1 ist weggefallen, war %2</translation>
    </message>
    <message>
        <source>page %1 is new, %2</source>
        <translation>Seite %1 ist neu, %2</translation>
    </message>
    <message>
        <source>page %1: %2 %3, was %4</source>
        <translation>Seite %1: %2 %3, war %4</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>bleed</source>
        <translation>Beschnitt</translation>
    </message>
    <message>
        <source>slipcase cover</source>
        <translation>Schuberdecke</translation>
    </message>
    <message>
        <source>the application does not read &apos;%1&apos; here: this calendar always has %2 pages</source>
        <translation>die Anwendung liest &apos;%1&apos; hier nicht: Dieser Kalender hat immer %2 Seiten</translation>
    </message>
    <message>
        <source>the application reads the page counts of a picture box without &apos;pieces&apos;: %1</source>
        <translation>die Anwendung liest die Seitenzahlen einer Fotobox ohne &apos;pieces&apos;: %1</translation>
    </message>
    <message>
        <source>the page counts are %1%2</source>
        <translation>die Seitenzahlen sind %1%2</translation>
    </message>
    <message>
        <source>, which is not valid</source>
        <translation>, was nicht gültig ist</translation>
    </message>
    <message>
        <source>; a wish for %1 pages becomes %2</source>
        <translation>; aus einem Wunsch nach %1 Seiten werden %2</translation>
    </message>
    <message>
        <source>; they begin at 1</source>
        <translation>; sie beginnen bei 1</translation>
    </message>
    <message>
        <source>&apos;pages&apos; times &apos;pieces&apos; is too large, so the application cuts it off; </source>
        <translation>&apos;pages&apos; mal &apos;pieces&apos; ist zu groß, also schneidet die Anwendung es ab; </translation>
    </message>
    <message>
        <source>, but the last one offered is %1</source>
        <translation>, aber die letzte angebotene ist %1</translation>
    </message>
    <message>
        <source>, which exceeds the maximum</source>
        <translation>, was das Höchste übersteigt</translation>
    </message>
    <message>
        <source>a block has %1 packages of pages, but the article has no &apos;page_step&apos;; the spine never grows</source>
        <translation>ein Block hat %1 Seitenpakete, aber der Artikel hat kein &apos;page_step&apos;; der Rücken wächst nie</translation>
    </message>
    <message>
        <source>at %1 pages %2, was %3</source>
        <translation>bei %1 Seiten %2, war %3</translation>
    </message>
    <message>
        <source>%1 of %2 page counts</source>
        <translation>%1 von %2 Seitenzahlen</translation>
    </message>
    <message>
        <source>all %1 page counts</source>
        <translation>allen %1 Seitenzahlen</translation>
    </message>
    <message>
        <source>%1 becomes %2</source>
        <translation>aus %1 wird %2</translation>
    </message>
    <message>
        <source>: %1 of %2 counts %3 gone</source>
        <translation>: %1 von %2 Seitenzahlen %3 weggefallen</translation>
    </message>
    <message>
        <source>is</source>
        <translation>ist</translation>
    </message>
    <message>
        <source>are</source>
        <translation>sind</translation>
    </message>
    <message>
        <source>: all %1 counts are gone</source>
        <translation>: alle %1 Seitenzahlen sind weggefallen</translation>
    </message>
    <message>
        <source>the page count </source>
        <translation>die Seitenzahl </translation>
    </message>
    <message>
        <source>, the next to %1 is %2</source>
        <translation>, die nächste zu %1 ist %2</translation>
    </message>
    <message>
        <source>one new page count, %1</source>
        <translation>eine neue Seitenzahl, %1</translation>
    </message>
    <message>
        <source>%1 new page counts, from %2 on</source>
        <translation>%1 neue Seitenzahlen, ab %2</translation>
    </message>
    <message>
        <source>the highest page count is %1, was %2; the valid ones stay %3</source>
        <translation>die größte Seitenzahl ist %1, war %2; gültig bleiben %3</translation>
    </message>
    <message>
        <source>the page counts (%1) are valid, were not (%2)</source>
        <translation>die Seitenzahlen (%1) sind gültig, waren es nicht (%2)</translation>
    </message>
    <message>
        <source>the page counts (%1) are no longer valid, were %2</source>
        <translation>die Seitenzahlen (%1) sind nicht mehr gültig, waren %2</translation>
    </message>
    <message>
        <source>%1 at %2 pages</source>
        <translation>%1 bei %2 Seiten</translation>
    </message>
    <message>
        <source>there is a spine, %1; was none</source>
        <translation>es gibt einen Buchrücken, %1; war keiner</translation>
    </message>
    <message>
        <source>the spine is gone, was %1</source>
        <translation>der Buchrücken ist weggefallen, war %1</translation>
    </message>
    <message>
        <source>the additional width on each side of the spine is %1, was %2</source>
        <translation>die zusätzliche Breite auf jeder Seite des Buchrückens ist %1, war %2</translation>
    </message>
    <message>
        <source> that were compared</source>
        <translation>, die verglichen wurden</translation>
    </message>
    <message>
        <source> that both have</source>
        <translation>, die beide haben</translation>
    </message>
    <message>
        <source>spine %1</source>
        <translation>Rücken %1</translation>
    </message>
    <message>
        <source>spine %1 %2 at %3: %4</source>
        <translation>Buchrücken %1 %2 bei %3: %4</translation>
    </message>
    <message>
        <source>wider</source>
        <translation>breiter</translation>
    </message>
    <message>
        <source>narrower</source>
        <translation>schmaler</translation>
    </message>
    <message>
        <source>spine %1, %2; another one at %3</source>
        <translation>Buchrücken %1, %2; ein anderer bei %3</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1 step %2</source>
        <translation>%1 Schritt %2</translation>
    </message>
    <message>
        <source>the line has more than %1 bytes</source>
        <translation>die Zeile hat mehr als %1 Bytes</translation>
    </message>
    <message>
        <source>more than article, page count and MCF</source>
        <translation>mehr als Artikel, Seitenzahl und MCF</translation>
    </message>
    <message>
        <source>the article is no number</source>
        <translation>der Artikel ist keine Zahl</translation>
    </message>
    <message>
        <source>the page count is no number</source>
        <translation>die Seitenzahl ist keine Zahl</translation>
    </message>
    <message>
        <source>the MCF is not UTF-8</source>
        <translation>die MCF ist kein UTF-8</translation>
    </message>
    <message>
        <source>the element %1 of line %2 is not closed</source>
        <translation>das Element %1 aus Zeile %2 ist nicht geschlossen</translation>
    </message>
    <message>
        <source>a comment is not closed by &apos;--&gt;&apos;</source>
        <translation>ein Kommentar ist nicht mit &apos;--&gt;&apos; geschlossen</translation>
    </message>
    <message>
        <source>what begins with &apos;&lt;?&apos; is not closed by &apos;?&gt;&apos;</source>
        <translation>was mit &apos;&lt;?&apos; beginnt, ist nicht mit &apos;?&gt;&apos; geschlossen</translation>
    </message>
    <message>
        <source>&apos;&amp;&apos; must be written as &apos;&amp;amp;&apos;</source>
        <translation>&apos;&amp;&apos; muss als &apos;&amp;amp;&apos; geschrieben werden</translation>
    </message>
    <message>
        <source>a value of this tag is not closed by a quote</source>
        <translation>ein Wert dieses Tags ist nicht durch ein Anführungszeichen geschlossen</translation>
    </message>
    <message>
        <source>the tag has no &apos;&gt;&apos;</source>
        <translation>dem Tag fehlt &apos;&gt;&apos;</translation>
    </message>
    <message>
        <source>a name is missing; in a text &apos;&lt;&apos; must be written as &apos;&amp;lt;&apos;</source>
        <translation>ein Name fehlt; in einem Text muss &apos;&lt;&apos; als &apos;&amp;lt;&apos; geschrieben werden</translation>
    </message>
    <message>
        <source>there must be a blank here, or a quote before is missing</source>
        <translation>hier muss ein Leerzeichen stehen, oder davor fehlt ein Anführungszeichen</translation>
    </message>
    <message>
        <source>the attribute %1 has no value in quotes</source>
        <translation>das Attribut %1 hat keinen Wert in Anführungszeichen</translation>
    </message>
    <message>
        <source>what stands here belongs into no tag</source>
        <translation>was hier steht, gehört in kein Tag</translation>
    </message>
    <message>
        <source>the byte 0x%1 is not UTF-8; save the file as UTF-8, or name its encoding in the first line</source>
        <translation>das Byte 0x%1 ist kein UTF-8; die Datei als UTF-8 speichern oder ihre Kodierung in der ersten Zeile nennen</translation>
    </message>
    <message>
        <source>the character U+%1 is not allowed in XML</source>
        <translation>das Zeichen U+%1 ist in XML nicht erlaubt</translation>
    </message>
    <message>
        <source>a &apos;&lt;&apos; inside of a tag: a quote or &apos;&gt;&apos; before it is missing, or it must be &apos;&amp;lt;&apos;</source>
        <translation>ein &apos;&lt;&apos; innerhalb eines Tags: Davor fehlt ein Anführungszeichen oder &apos;&gt;&apos;, oder es muss &apos;&amp;lt;&apos; heißen</translation>
    </message>
    <message>
        <source>&apos;--&apos; inside of a comment</source>
        <translation>&apos;--&apos; innerhalb eines Kommentars</translation>
    </message>
    <message>
        <source>&apos;]]&gt;&apos; in a text must be written as &apos;]]&amp;gt;&apos;</source>
        <translation>&apos;]]&gt;&apos; in einem Text muss als &apos;]]&amp;gt;&apos; geschrieben werden</translation>
    </message>
    <message>
        <source>what stands here is no XML</source>
        <translation>was hier steht, ist kein XML</translation>
    </message>
    <message>
        <source>there is text outside of the root element</source>
        <translation>außerhalb des Wurzelelements steht Text</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the file has no element</source>
        <translation>die Datei hat kein Element</translation>
    </message>
    <message>
        <source>what stands here does not belong before the root element</source>
        <translation>was hier steht, gehört nicht vor das Wurzelelement</translation>
    </message>
    <message>
        <source>the file ends inside of a character</source>
        <translation>die Datei endet innerhalb eines Zeichens</translation>
    </message>
    <message>
        <source>the end tag is that of %1, but %2</source>
        <translation>das Ende-Tag ist das von %1, aber %2</translation>
    </message>
    <message>
        <source>the attribute %1 is there twice</source>
        <translation>das Attribut %1 steht zweimal da</translation>
    </message>
    <message>
        <source>there is something behind the end of the root element</source>
        <translation>hinter dem Ende des Wurzelelements steht noch etwas</translation>
    </message>
    <message>
        <source>&apos;&lt;?xml&apos; may only stand at the very begin of the file</source>
        <translation>&apos;&lt;?xml&apos; darf nur ganz am Anfang der Datei stehen</translation>
    </message>
    <message>
        <source>a section is not closed by &apos;]]&gt;&apos;</source>
        <translation>ein Abschnitt ist nicht mit &apos;]]&gt;&apos; geschlossen</translation>
    </message>
    <message>
        <source>The root. Its `article` children are the articles; other children are skipped.</source>
        <translation>Die Wurzel. Ihre Kinder `article` sind die Artikel; andere Kinder werden übergangen.</translation>
    </message>
    <message>
        <source>What customers can order, and all that the application knows of it.</source>
        <translation>Was Kunden bestellen können, und alles, was die Anwendung davon weiß.</translation>
    </message>
    <message>
        <source>The options on offer, one `form` each, in the order in which dialogs list them.</source>
        <translation>Die angebotenen Optionen, je ein `form`, in der Reihenfolge, in der Dialoge sie aufführen.</translation>
    </message>
    <message>
        <source>One option. Without `key` or `value` it is skipped.</source>
        <translation>Eine Option. Ohne `key` oder `value` wird sie übergangen.</translation>
    </message>
    <message>
        <source>How the article is bound.</source>
        <translation>Wie der Artikel gebunden ist.</translation>
    </message>
    <message>
        <source>How the spine grows with the page count.</source>
        <translation>Wie der Rücken mit der Seitenzahl wächst.</translation>
    </message>
    <message>
        <source>The size of one kind of page; an article has as many `page` children as it has kinds.</source>
        <translation>Die Größe einer Art von Seite; ein Artikel hat so viele Kinder `page` wie Arten von Seiten.</translation>
    </message>
    <message>
        <source>Where production barcodes stand.</source>
        <translation>Wo Barcodes der Produktion stehen.</translation>
    </message>
    <message>
        <source>A production barcode. Without an image name, or smaller than one layout unit, it is skipped.</source>
        <translation>Ein Barcode der Produktion. Ohne Namen eines Bildes, oder kleiner als eine Layouteinheit, wird er übergangen.</translation>
    </message>
    <message>
        <source>`id` counts</source>
        <translation>es gilt `id`</translation>
    </message>
    <message>
        <source>The article&apos;s number, a positive integer of 32 bits.</source>
        <translation>Die Nummer des Artikels, eine positive ganze Zahl mit 32 Bit.</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>keine Nummer</translation>
    </message>
    <message>
        <source>The number where `art_id` is missing or not positive.</source>
        <translation>Die Nummer, wo `art_id` fehlt oder nicht positiv ist.</translation>
    </message>
    <message>
        <source>The name that `ktcatalogue` shows.</source>
        <translation>Der Name, den `ktcatalogue` zeigt.</translation>
    </message>
    <message>
        <source>What kind of article it is.</source>
        <translation>Welche Art von Artikel es ist.</translation>
    </message>
    <message>
        <source>The family it is arranged as.</source>
        <translation>Die Produktfamilie, nach der er angeordnet wird.</translation>
    </message>
    <message>
        <source>The size class of its page.</source>
        <translation>Die Größenklasse seiner Seite.</translation>
    </message>
    <message>
        <source>The format of its page.</source>
        <translation>Das Format seiner Seite.</translation>
    </message>
    <message>
        <source>How it is bound, or what object it is.</source>
        <translation>Wie er eingebunden ist, oder was für ein Gegenstand er ist.</translation>
    </message>
    <message>
        <source>How its pages are bound.</source>
        <translation>Wie seine Seiten gebunden sind.</translation>
    </message>
    <message>
        <source>The paper of a print product.</source>
        <translation>Das Papier eines Druckprodukts.</translation>
    </message>
    <message>
        <source>The surface of a photo print.</source>
        <translation>Die Oberfläche eines Fotoabzugs.</translation>
    </message>
    <message>
        <source>The material class of a gift.</source>
        <translation>Die Materialklasse eines Geschenks.</translation>
    </message>
    <message>
        <source>The kind of downloadable content.</source>
        <translation>Die Art der Inhalte zum Herunterladen.</translation>
    </message>
    <message>
        <source>The finishings that are possible.</source>
        <translation>Die möglichen Veredelungen.</translation>
    </message>
    <message>
        <source>The code of the product type; an album code is shortened to its family.</source>
        <translation>Der Code des Produkttyps; der eines Albums wird auf seine Familie gekürzt.</translation>
    </message>
    <message>
        <source>The code under which the price list bills it; an empty one is free.</source>
        <translation>Der Code, unter dem die Preisliste ihn berechnet; ein leerer ist kostenlos.</translation>
    </message>
    <message>
        <source>no shipping group</source>
        <translation>keine Versandgruppe</translation>
    </message>
    <message>
        <source>The number of the shipping group; 0 ships together with other groups.</source>
        <translation>Die Nummer der Versandgruppe; 0 wird mit anderen Gruppen zusammen versandt.</translation>
    </message>
    <message>
        <source>The least page count.</source>
        <translation>Die kleinste Seitenzahl.</translation>
    </message>
    <message>
        <source>that of `pages`; 29 more for a picture box</source>
        <translation>die von `pages`; bei einer Bilderbox 29 mehr</translation>
    </message>
    <message>
        <source>The highest page count.</source>
        <translation>Die größte Seitenzahl.</translation>
    </message>
    <message>
        <source>0; 1 for a picture box</source>
        <translation>0; bei einer Bilderbox 1</translation>
    </message>
    <message>
        <source>The pages of one package; 0 means that the count does not step.</source>
        <translation>Die Seiten eines Pakets; 0 heißt, dass es keine Schritte gibt.</translation>
    </message>
    <message>
        <source>Multiplies `pages` and `max_pages`, but not `page_step`; a picture box has no pieces.</source>
        <translation>Vervielfacht `pages` und `max_pages`, aber nicht `page_step`; eine Bilderbox hat keine Stücke.</translation>
    </message>
    <message>
        <source>The key used in orders, such as `alcolor`.</source>
        <translation>Der Schlüssel in Bestellungen, etwa `alcolor`.</translation>
    </message>
    <message>
        <source>The value used in orders, such as `black`.</source>
        <translation>Der Wert in Bestellungen, etwa `black`.</translation>
    </message>
    <message>
        <source>The display name of the key.</source>
        <translation>Der Anzeigename des Schlüssels.</translation>
    </message>
    <message>
        <source>The display name of the value.</source>
        <translation>Der Anzeigename des Werts.</translation>
    </message>
    <message>
        <source>The name of the editor that offers the option.</source>
        <translation>Der Name des Editors, der die Option anbietet.</translation>
    </message>
    <message>
        <source>A further name; kept, but not used.</source>
        <translation>Ein weiterer Name; behalten, aber nicht verwendet.</translation>
    </message>
    <message>
        <source>A reference to a preview image.</source>
        <translation>Ein Verweis auf ein Vorschaubild.</translation>
    </message>
    <message>
        <source>no colour: the option has no swatch</source>
        <translation>keine Farbe: Die Option hat kein Farbfeld</translation>
    </message>
    <message>
        <source>The colour of the swatch: `#RGB`, `#RRGGBB`, `#AARRGGBB` or an SVG colour name.</source>
        <translation>Die Farbe des Farbfelds: `#RGB`, `#RRGGBB`, `#AARRGGBB` oder der Name einer SVG-Farbe.</translation>
    </message>
    <message>
        <source>Whether the option is the default choice. Of several for one key, the last wins.</source>
        <translation>Ob die Option vorausgewählt ist. Von mehreren für einen Schlüssel gilt die letzte.</translation>
    </message>
    <message>
        <source>the option is charged</source>
        <translation>die Option wird berechnet</translation>
    </message>
    <message>
        <source>Whether the option is free of charge.</source>
        <translation>Ob die Option kostenlos ist.</translation>
    </message>
    <message>
        <source>The unit of the spine&apos;s lengths: `mm`, `cm`, `inch`, `pt` or `layoutunit` (0.1 mm). An empty text counts as a missing one.</source>
        <translation>Die Einheit der Längen des Rückens: `mm`, `cm`, `inch`, `pt` oder `layoutunit` (0,1 mm). Ein leerer Text gilt als fehlend.</translation>
    </message>
    <message>
        <source>the spine never grows</source>
        <translation>der Rücken wächst nie</translation>
    </message>
    <message>
        <source>How many packages of pages make one block.</source>
        <translation>Wie viele Seitenpakete einen Block ergeben.</translation>
    </message>
    <message>
        <source>The width at the least page count.</source>
        <translation>Die Breite bei der kleinsten Seitenzahl.</translation>
    </message>
    <message>
        <source>What each complete block adds.</source>
        <translation>Was jeder vollständige Block hinzufügt.</translation>
    </message>
    <message>
        <source>Added twice, once per side.</source>
        <translation>Kommt zweimal hinzu, einmal je Seite.</translation>
    </message>
    <message>
        <source>The kind of page.</source>
        <translation>Die Art der Seite.</translation>
    </message>
    <message>
        <source>Where it lies.</source>
        <translation>Wo sie liegt.</translation>
    </message>
    <message>
        <source>The unit of all its lengths.</source>
        <translation>Die Einheit aller ihrer Längen.</translation>
    </message>
    <message>
        <source>The usable width, without bleed.</source>
        <translation>Die nutzbare Breite, ohne Beschnitt.</translation>
    </message>
    <message>
        <source>The usable height, without bleed.</source>
        <translation>Die nutzbare Höhe, ohne Beschnitt.</translation>
    </message>
    <message>
        <source>The bleed above.</source>
        <translation>Der Beschnitt oben.</translation>
    </message>
    <message>
        <source>The bleed below.</source>
        <translation>Der Beschnitt unten.</translation>
    </message>
    <message>
        <source>The bleed on the left side.</source>
        <translation>Der Beschnitt auf der linken Seite.</translation>
    </message>
    <message>
        <source>The bleed on the right side.</source>
        <translation>Der Beschnitt auf der rechten Seite.</translation>
    </message>
    <message>
        <source>The usable width of the slipcase cover. Without this attribute there is no slipcase.</source>
        <translation>Die nutzbare Breite des Schuberbezugs. Ohne dieses Attribut gibt es keinen Schuber.</translation>
    </message>
    <message>
        <source>The usable height of the slipcase cover.</source>
        <translation>Die nutzbare Höhe des Schuberbezugs.</translation>
    </message>
    <message>
        <source>The unit of the positions and sizes.</source>
        <translation>Die Einheit der Orte und Größen.</translation>
    </message>
    <message>
        <source>The page on which it stands.</source>
        <translation>Die Seite, auf der er steht.</translation>
    </message>
    <message>
        <source>Its left edge.</source>
        <translation>Seine linke Kante.</translation>
    </message>
    <message>
        <source>Its lower edge.</source>
        <translation>Seine untere Kante.</translation>
    </message>
    <message>
        <source>Its width.</source>
        <translation>Seine Breite.</translation>
    </message>
    <message>
        <source>Its height.</source>
        <translation>Seine Höhe.</translation>
    </message>
    <message>
        <source>The placeholder image, a file below `icons/picshelf` of the resources.</source>
        <translation>Das Platzhalterbild, eine Datei unter `icons/picshelf` der Ressourcen.</translation>
    </message>
    <message>
        <source>A whole number of 32 bits. Blanks around it do not matter.</source>
        <translation>Eine ganze Zahl mit 32 Bit. Leerzeichen um sie herum zählen nicht.</translation>
    </message>
    <message>
        <source>A length, a number with a decimal point, not a comma. Blanks around it do not matter.</source>
        <translation>Eine Länge, eine Zahl mit Dezimalpunkt, nicht Komma. Leerzeichen um sie herum zählen nicht.</translation>
    </message>
    <message>
        <source>`true`, `false`, `1` or `0` in any letter case. Blanks around it do not matter.</source>
        <translation>`true`, `false`, `1` oder `0`, groß oder klein geschrieben. Leerzeichen darum herum zählen nicht.</translation>
    </message>
    <message>
        <source>Yes.</source>
        <translation>Ja.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nein.</translation>
    </message>
    <message>
        <source>The same as `true`.</source>
        <translation>Dasselbe wie `true`.</translation>
    </message>
    <message>
        <source>The same as `false`.</source>
        <translation>Dasselbe wie `false`.</translation>
    </message>
    <message>
        <source>`#RGB`, `#RRGGBB`, `#AARRGGBB` or an SVG colour name in any letter case; an empty text is no colour. Whether a name is one, `ktcatalogue check` tells.</source>
        <translation>`#RGB`, `#RRGGBB`, `#AARRGGBB` oder der Name einer SVG-Farbe, groß oder klein geschrieben; ein leerer Text ist keine Farbe. Ob ein Name einer ist, sagt `ktcatalogue check`.</translation>
    </message>
    <message>
        <source>A keyword of %1.</source>
        <translation>Ein Schlüsselwort von %1.</translation>
    </message>
    <message>
        <source>Deprecated: write %1, which it is read as.</source>
        <translation>Veraltet: Als %1 gelesen und besser so geschrieben.</translation>
    </message>
    <message>
        <source>One keyword or several, separated by `,`, in any letter case. Blanks around them do not matter. Whether a word is a keyword, `ktcatalogue check` tells.</source>
        <translation>Ein Schlüsselwort oder mehrere, getrennt durch `,`, groß oder klein geschrieben. Leerzeichen um sie herum zählen nicht. Ob ein Wort ein Schlüsselwort ist, sagt `ktcatalogue check`.</translation>
    </message>
    <message>
        <source>The unit of lengths, in any letter case. Blanks around it do not matter; an empty text counts as a missing one.</source>
        <translation>Die Einheit von Längen, groß oder klein geschrieben. Leerzeichen um sie herum zählen nicht; ein leerer Text gilt als fehlend.</translation>
    </message>
    <message>
        <source>A text.</source>
        <translation>Ein Text.</translation>
    </message>
    <message>
        <source>Keywords of %1, several separated by `,`.</source>
        <translation>Schlüsselwörter von %1, mehrere getrennt durch `,`.</translation>
    </message>
    <message>
        <source>A whole number.</source>
        <translation>Eine ganze Zahl.</translation>
    </message>
    <message>
        <source>A length in the %1 of %2.</source>
        <translation>Eine Länge in den %1 von %2.</translation>
    </message>
    <message>
        <source>True or false.</source>
        <translation>Wahr oder falsch.</translation>
    </message>
    <message>
        <source>A unit of length.</source>
        <translation>Eine Längeneinheit.</translation>
    </message>
    <message>
        <source>A colour.</source>
        <translation>Eine Farbe.</translation>
    </message>
    <message>
        <source>Needed.</source>
        <translation>Notwendig.</translation>
    </message>
    <message>
        <source>Default: %1.</source>
        <translation>Vorgabe: %1.</translation>
    </message>
    <message>
        <source>none of them</source>
        <translation>keines davon</translation>
    </message>
    <message>
        <source>an empty text</source>
        <translation>ein leerer Text</translation>
    </message>
    <message>
        <source>The catalogue format of KTProductBase, made by `ktcatalogue schema` from the library&apos;s own tables. What it cannot say, `ktcatalogue check` does.</source>
        <translation>Das Katalogformat von KTProductBase, von `ktcatalogue schema` aus den Tabellen der Bibliothek gemacht. Was es nicht sagen kann, sagt `ktcatalogue check`.</translation>
    </message>
    <message>
        <source>Belongs into %1.</source>
        <translation>Gehört in %1.</translation>
    </message>
    <message>
        <source>Only the first one there is read.</source>
        <translation>Nur das erste dort wird gelesen.</translation>
    </message>
    <message>
        <source>Since %1.</source>
        <translation>Seit %1.</translation>
    </message>
    <message>
        <source>en</source>
        <translation>de</translation>
    </message>
</context>
<context>
    <name>KTToolText</name>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>%1 each</source>
        <translation>je %1</translation>
    </message>
    <message>
        <source>%1 further steps</source>
        <translation>%1 weitere Stufen</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>%1 of %2 articles</source>
        <translation>%1 von %2 Artikeln</translation>
    </message>
    <message>
        <source>%1 to %2 pages</source>
        <translation>%1 bis %2 Seiten</translation>
    </message>
    <message>
        <source>%1 to %2, step %3</source>
        <translation>%1 bis %2, Schritt %3</translation>
    </message>
    <message>
        <source>%1, made on %2</source>
        <translation>%1, erstellt am %2</translation>
    </message>
    <message>
        <source>%1: %2 mm</source>
        <translation>%1: %2 mm</translation>
    </message>
    <message>
        <source>%1: %2 of %3 articles</source>
        <translation>%1: %2 von %3 Artikeln</translation>
    </message>
    <message>
        <source>%1: %2 to %3 mm</source>
        <translation>%1: %2 bis %3 mm</translation>
    </message>
    <message>
        <source>%1: catalogue report</source>
        <translation>%1: Katalogbericht</translation>
    </message>
    <message>
        <source>%1: there is no article of the class %2</source>
        <translation>%1: es gibt keinen Artikel der Klasse %2</translation>
    </message>
    <message>
        <source>%1… (%2 characters)</source>
        <translation>%1… (%2 Zeichen)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no class of articles</source>
        <translation>&apos;%1&apos; ist keine Artikelklasse</translation>
    </message>
    <message>
        <source>&apos;report&apos; needs -o OUT</source>
        <translation>&apos;report&apos; braucht -o OUT</translation>
    </message>
    <message>
        <source>, compared with %1</source>
        <translation>, verglichen mit %1</translation>
    </message>
    <message>
        <source>--%1 needs the name of a catalogue</source>
        <translation>--%1 braucht den Namen eines Katalogs</translation>
    </message>
    <message>
        <source>All articles; the buttons in the heads of the columns sort them.</source>
        <translation>Alle Artikel; die Schaltflächen in den Spaltenköpfen sortieren sie.</translation>
    </message>
    <message>
        <source>All classes</source>
        <translation>Alle Klassen</translation>
    </message>
    <message>
        <source>Arrangement</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Article</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Articles</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Barcodes</source>
        <translation>Barcodes</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>Bindung</translation>
    </message>
    <message>
        <source>Box styles</source>
        <translation>Boxvarianten</translation>
    </message>
    <message>
        <source>Breaking</source>
        <translation>Bruch</translation>
    </message>
    <message>
        <source>By product class</source>
        <translation>Nach Produktklasse</translation>
    </message>
    <message>
        <source>Catalogue report, made on </source>
        <translation>Katalogbericht, erstellt am </translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Changes since %1</source>
        <translation>Änderungen seit %1</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Berechnung</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Default choice</source>
        <translation>Vorauswahl</translation>
    </message>
    <message>
        <source>Drawings</source>
        <translation>Zeichnungen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Findings outside of articles</source>
        <translation>Befunde außerhalb von Artikeln</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Left open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Not drawn: %1</source>
        <translation>Nicht gezeichnet: %1</translation>
    </message>
    <message>
        <source>Not drawn: the article %1.</source>
        <translation>Nicht gezeichnet: der Artikel %1.</translation>
    </message>
    <message>
        <source>Nothing has changed.</source>
        <translation>Nichts hat sich geändert.</translation>
    </message>
    <message>
        <source>Nothing is preselected.</source>
        <translation>Nichts ist vorausgewählt.</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Number, name, class …</source>
        <translation>Nummer, Name, Klasse …</translation>
    </message>
    <message>
        <source>Of the page counts %1 were looked at, evenly.</source>
        <translation>Von den Seitenzahlen wurden %1 betrachtet, gleichmäßig verteilt.</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Angebot</translation>
    </message>
    <message>
        <source>Only a part of the catalogue: %1</source>
        <translation>Nur ein Teil des Katalogs: %1</translation>
    </message>
    <message>
        <source>Only articles in which check finds something.</source>
        <translation>Nur Artikel, in denen check etwas findet.</translation>
    </message>
    <message>
        <source>Only articles of this class, such as book, or of several, separated by commas.</source>
        <translation>Nur Artikel dieser Klasse, etwa book, oder mehrerer, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>Only changed</source>
        <translation>Nur geänderte</translation>
    </message>
    <message>
        <source>Only the article with this number; may be given several times.</source>
        <translation>Nur der Artikel mit dieser Nummer; kann mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>Only with findings</source>
        <translation>Nur mit Befunden</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Order text</source>
        <translation>Bestelltext</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Page counts</source>
        <translation>Seitenzahlen</translation>
    </message>
    <message>
        <source>Page counts and spine</source>
        <translation>Seitenzahlen und Buchrücken</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Fotopapier</translation>
    </message>
    <message>
        <source>Price class</source>
        <translation>Preisklasse</translation>
    </message>
    <message>
        <source>Production</source>
        <translation>Produktion</translation>
    </message>
    <message>
        <source>Removed articles</source>
        <translation>Entfallene Artikel</translation>
    </message>
    <message>
        <source>Says beside each article what has changed since this catalogue; - for standard input.</source>
        <translation>Sagt bei jedem Artikel, was sich seit diesem Katalog geändert hat; - für die Standardeingabe.</translation>
    </message>
    <message>
        <source>Scale 1 : %1, lengths in millimetres, at %2 pages.</source>
        <translation>Maßstab 1 : %1, Längen in Millimetern, bei %2 Seiten.</translation>
    </message>
    <message>
        <source>Scale 1 : %1, lengths in millimetres.</source>
        <translation>Maßstab 1 : %1, Längen in Millimetern.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Shipping group</source>
        <translation>Versandgruppe</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Skip to the articles</source>
        <translation>Zu den Artikeln springen</translation>
    </message>
    <message>
        <source>Spine</source>
        <translation>Buchrücken</translation>
    </message>
    <message>
        <source>Spot colours</source>
        <translation>Veredelungen</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Überblick</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>The article offers no options.</source>
        <translation>Der Artikel bietet keine Optionen an.</translation>
    </message>
    <message>
        <source>The dashed frame is the slipcase cover.</source>
        <translation>Der gestrichelte Rahmen ist die Schuberdecke.</translation>
    </message>
    <message>
        <source>The red frame is the bleed.</source>
        <translation>Der rote Rahmen ist der Beschnitt.</translation>
    </message>
    <message>
        <source>The spine is %1 mm wide at %2 pages</source>
        <translation>Der Buchrücken ist bei %2 Seiten %1 mm breit</translation>
    </message>
    <message>
        <source>The spine is %1 mm wide at %2 pages and %3 mm at %4 pages</source>
        <translation>Der Buchrücken ist bei %2 Seiten %1 mm und bei %4 Seiten %3 mm breit</translation>
    </message>
    <message>
        <source>To the table</source>
        <translation>Zur Tabelle</translation>
    </message>
    <message>
        <source>Values as a table</source>
        <translation>Werte als Tabelle</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Writes the catalogue as a page to look at in a browser, or to print: a table that sorts and filters, and for each article its pages drawn to scale, its options, the spine, the default choice, and what check finds.</source>
        <translation>Schreibt den Katalog als Seite, die man im Browser ansieht oder druckt: eine Tabelle, die sortiert und filtert, und zu jedem Artikel seine Seiten maßstäblich gezeichnet, seine Optionen, den Buchrücken, die Vorauswahl und was check findet.</translation>
    </message>
    <message>
        <source>Writes the catalogue as a page to look at.</source>
        <translation>Schreibt den Katalog als Seite zum Ansehen.</translation>
    </message>
    <message>
        <source>Writes to OUT, a page of HTML that needs no other file; - for standard output. A file that is there is replaced once the page is complete.</source>
        <translation>Schreibt nach OUT, eine HTML-Seite, die keine andere Datei braucht; - für die Standardausgabe. Eine vorhandene Datei wird ersetzt, sobald die Seite vollständig ist.</translation>
    </message>
    <message>
        <source>articles</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>articles of the class %1</source>
        <translation>Artikel der Klasse %1</translation>
    </message>
    <message>
        <source>articles with findings</source>
        <translation>Artikel mit Befunden</translation>
    </message>
    <message>
        <source>barcode on page %1: %2</source>
        <translation>Barcode auf Seite %1: %2</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>en</source>
        <translation>de</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>hints</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>it has changed since it was read first</source>
        <translation>sie hat sich geändert, seit sie zuerst gelesen wurde</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>lines %1 to %2</source>
        <translation>Zeilen %1 bis %2</translation>
    </message>
    <message>
        <source>new</source>
        <translation>neu</translation>
    </message>
    <message>
        <source>new line %1</source>
        <translation>neue Zeile %1</translation>
    </message>
    <message>
        <source>no class</source>
        <translation>keine Klasse</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>ohne Nummer</translation>
    </message>
    <message>
        <source>no room for the findings: %1</source>
        <translation>kein Platz für die Befunde: %1</translation>
    </message>
    <message>
        <source>not charged</source>
        <translation>nicht berechnet</translation>
    </message>
    <message>
        <source>not understood: &apos;%1&apos;</source>
        <translation>nicht verstanden: &apos;%1&apos;</translation>
    </message>
    <message>
        <source>of it %1 added on each side</source>
        <translation>davon %1 Zugabe auf jeder Seite</translation>
    </message>
    <message>
        <source>old line %1</source>
        <translation>alte Zeile %1</translation>
    </message>
    <message>
        <source>preview %1</source>
        <translation>Vorschau %1</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfallen</translation>
    </message>
    <message>
        <source>slipcase cover %1</source>
        <translation>Schuberdecke %1</translation>
    </message>
    <message>
        <source>the articles %1</source>
        <translation>die Artikel %1</translation>
    </message>
    <message>
        <source>transparent</source>
        <translation>durchsichtig</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>with bleed %1</source>
        <translation>mit Beschnitt %1</translation>
    </message>
    <message>
        <source>without a name</source>
        <translation>ohne Namen</translation>
    </message>
    <message>
        <source>The number of the article.</source>
        <translation>Die Nummer des Artikels.</translation>
    </message>
    <message>
        <source>Only the article with this number.</source>
        <translation>Nur der Artikel mit dieser Nummer.</translation>
    </message>
    <message>
        <source>%1: %2 articles</source>
        <translation>%1: %2 Artikel</translation>
    </message>
    <message>
        <source>Further files, named in FILE line by line; - for standard input.</source>
        <translation>Weitere Dateien, in FILE Zeile für Zeile genannt; - für die Standardeingabe.</translation>
    </message>
    <message>
        <source>The least severity for exit code 1: error, warning (the default), hint or never.</source>
        <translation>Der geringste Schweregrad für Ende-Code 1: error, warning (Vorgabe), hint oder never.</translation>
    </message>
    <message>
        <source>Leaves out a rule, or several, separated by commas.</source>
        <translation>Lässt eine Regel weg oder mehrere, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>Takes the findings of a rule, or of several, as errors.</source>
        <translation>Nimmt die Funde einer Regel oder mehrerer als Fehler.</translation>
    </message>
    <message>
        <source>Takes warnings as errors and hints as warnings.</source>
        <translation>Nimmt Warnungen als Fehler und Hinweise als Warnungen.</translation>
    </message>
    <message>
        <source>Checks N files at once; the output stays the same. 1 by default.</source>
        <translation>Prüft N Dateien zugleich; die Ausgabe bleibt dieselbe. Vorgabe ist 1.</translation>
    </message>
    <message>
        <source>Shows the first N findings; all of them are counted.</source>
        <translation>Zeigt die ersten N Funde; gezählt werden alle.</translation>
    </message>
    <message>
        <source>Neither summary nor progress on standard error.</source>
        <translation>Weder Zusammenfassung noch Fortschritt auf der Fehlerausgabe.</translation>
    </message>
    <message>
        <source>Lists the rules.</source>
        <translation>Führt die Regeln auf.</translation>
    </message>
    <message>
        <source>Explains a rule.</source>
        <translation>Erklärt eine Regel.</translation>
    </message>
    <message>
        <source>auto (the default: on a terminal, unless NO_COLOR is set), always or never.</source>
        <translation>auto (Vorgabe: auf einem Terminal, wenn NO_COLOR nicht gesetzt ist), always oder never.</translation>
    </message>
    <message>
        <source>there is no rule &apos;%1&apos;</source>
        <translation>es gibt keine Regel &apos;%1&apos;</translation>
    </message>
    <message>
        <source>, did you mean &apos;%1&apos;?</source>
        <translation>, war &apos;%1&apos; gemeint?</translation>
    </message>
    <message>
        <source>total: %1</source>
        <translation>gesamt: %1</translation>
    </message>
    <message>
        <source>, %1 of them not shown</source>
        <translation>, davon %1 nicht gezeigt</translation>
    </message>
    <message>
        <source>; %1 of %2 files unreadable</source>
        <translation>; %1 von %2 Dateien nicht lesbar</translation>
    </message>
    <message>
        <source>%1 of %2 files</source>
        <translation>%1 von %2 Dateien</translation>
    </message>
    <message>
        <source>Finds what the application would pass over in silence: where it stands, and what the application makes of it. Exits with 0 when nothing was found, 1 for findings, 2 for files that are not readable.</source>
        <translation>Findet, was die Anwendung stillschweigend überginge: wo es steht und was sie daraus macht. Endet mit 0, wenn nichts gefunden wurde, 1 bei Funden, 2 bei Dateien, die nicht lesbar sind.</translation>
    </message>
    <message>
        <source>&apos;check&apos; needs a file</source>
        <translation>&apos;check&apos; braucht eine Datei</translation>
    </message>
    <message>
        <source>%1

Example:
  %2 %3 %4</source>
        <translation>%1

Beispiel:
  %2 %3 %4</translation>
    </message>
    <message>
        <source>Displays this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>The catalogue; - for standard input.</source>
        <translation>Der Katalog; - für die Standardeingabe.</translation>
    </message>
    <message>
        <source>One of %1; %2 by default.</source>
        <translation>Eines von %1; Vorgabe ist %2.</translation>
    </message>
    <message>
        <source>The same as --format json.</source>
        <translation>Dasselbe wie --format json.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs one file</source>
        <translation>&apos;%1&apos; braucht eine Datei</translation>
    </message>
    <message>
        <source>Usage: %1
</source>
        <translation>Aufruf: %1
</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs --%2</source>
        <translation>&apos;%1&apos; braucht --%2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number for --%2</source>
        <translation>&apos;%1&apos; ist keine Zahl für --%2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number for %2%3</source>
        <translation>&apos;%1&apos; ist keine Zahl für %2%3</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no value of --%2; possible: %3</source>
        <translation>&apos;%1&apos; ist kein Wert von --%2; möglich: %3</translation>
    </message>
    <message>
        <source>%1: there is no article %2</source>
        <translation>%1: es gibt keinen Artikel %2</translation>
    </message>
    <message>
        <source>%1: article %2 %3</source>
        <translation>%1: Artikel %2 %3</translation>
    </message>
    <message>
        <source>%1: %2; see &apos;%1 --help&apos;</source>
        <translation>%1: %2; siehe &apos;%1 --help&apos;</translation>
    </message>
    <message>
        <source>the output cannot be written</source>
        <translation>die Ausgabe lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>The least kind for exit code 1: breaking (the default), charge, production, offer, text or never.</source>
        <translation>Die geringste Art für Ende-Code 1: breaking (Vorgabe), charge, production, offer, text oder never.</translation>
    </message>
    <message>
        <source>Only how many differences there are of each rule.</source>
        <translation>Nur, wie viele Unterschiede es je Regel gibt.</translation>
    </message>
    <message>
        <source>Counts the saved orders that each breaking or charge difference hits; - for standard input.</source>
        <translation>Zählt die gespeicherten Bestellungen, die jeder Unterschied der Arten breaking und charge trifft; - für die Standardeingabe.</translation>
    </message>
    <message>
        <source>Lists the first N orders that can no longer be ordered. 20 by default.</source>
        <translation>Führt die ersten N Bestellungen auf, die nicht mehr bestellt werden können. Vorgabe ist 20.</translation>
    </message>
    <message>
        <source>No summary on standard error.</source>
        <translation>Keine Zusammenfassung auf der Fehlerausgabe.</translation>
    </message>
    <message>
        <source>--%1 needs --%2</source>
        <translation>--%1 braucht --%2</translation>
    </message>
    <message>
        <source>%1: %2 orders</source>
        <translation>%1: %2 Bestellungen</translation>
    </message>
    <message>
        <source>there is no article %1 in %2 nor in %3</source>
        <translation>es gibt keinen Artikel %1 in %2 oder %3</translation>
    </message>
    <message>
        <source>Compares two catalogues as the application reads them and tells what changes for customers, orders and production. Exits with 0 when nothing was found, 1 for differences of the kind of --fail-on or a graver one, 2 for files that are not readable.</source>
        <translation>Vergleicht zwei Kataloge, wie die Anwendung sie liest, und sagt, was sich für Kunden, Bestellungen und Produktion ändert. Endet mit 0, wenn nichts gefunden wurde, 1 bei Unterschieden der Art von --fail-on oder einer schwereren, 2 bei Dateien, die nicht lesbar sind.</translation>
    </message>
    <message>
        <source>The catalogue as it was; - for standard input.</source>
        <translation>Der Katalog, wie er war; - für die Standardeingabe.</translation>
    </message>
    <message>
        <source>The catalogue as it is to be; - for standard input.</source>
        <translation>Der Katalog, wie er werden soll; - für die Standardeingabe.</translation>
    </message>
    <message>
        <source>&apos;diff&apos; needs two files, OLD and NEW</source>
        <translation>&apos;diff&apos; braucht zwei Dateien, OLD und NEW</translation>
    </message>
    <message>
        <source>standard input can be read only once</source>
        <translation>die Standardeingabe lässt sich nur einmal lesen</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it cannot be written whole</source>
        <translation>sie lässt sich nicht vollständig schreiben</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>An unknown word and an empty text become %1</source>
        <translation>Ein unbekanntes Wort und ein leerer Text werden zu %1</translation>
    </message>
    <message>
        <source>An unknown word becomes %1, an empty text %2</source>
        <translation>Ein unbekanntes Wort wird zu %1, ein leerer Text zu %2</translation>
    </message>
    <message>
        <source>, which is written as %1%2%1</source>
        <translation>, was als %1%2%1 geschrieben wird</translation>
    </message>
    <message>
        <source>keyword</source>
        <translation>Schlüsselwort</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>also read</source>
        <translation>auch gelesen</translation>
    </message>
    <message>
        <source>unknown class &apos;%1&apos;, </source>
        <translation>unbekannte Klasse &apos;%1&apos;, </translation>
    </message>
    <message>
        <source>there are </source>
        <translation>es gibt </translation>
    </message>
    <message>
        <source>did you mean &apos;%1&apos;?</source>
        <translation>war &apos;%1&apos; gemeint?</translation>
    </message>
    <message>
        <source>Shows the keyword tables of the classifications: what is written, what it stands for, what else is read, and what becomes of other texts.</source>
        <translation>Zeigt die Schlüsselworttabellen der Einordnungen: was geschrieben wird, wofür es steht, was außerdem gelesen wird und was aus anderen Texten wird.</translation>
    </message>
    <message>
        <source>Only this classification, named by its class or its attribute: KTOrientation or orientation.</source>
        <translation>Nur diese Einordnung, genannt nach ihrer Klasse oder ihrem Attribut: KTOrientation oder orientation.</translation>
    </message>
    <message>
        <source>&apos;keywords&apos; takes one class</source>
        <translation>&apos;keywords&apos; nimmt eine Klasse</translation>
    </message>
    <message>
        <source>ktcatalogue: the texts in the language &apos;%1&apos; are missing</source>
        <translation>ktcatalogue: die Texte der Sprache &apos;%1&apos; fehlen</translation>
    </message>
    <message>
        <source>article</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>product type</source>
        <translation>Produkttyp</translation>
    </message>
    <message>
        <source>pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>order text</source>
        <translation>Bestelltext</translation>
    </message>
    <message>
        <source>production</source>
        <translation>Produktion</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not KEY=VALUE</source>
        <translation>&apos;%1&apos; ist nicht KEY=VALUE</translation>
    </message>
    <message>
        <source>Starts from the preselected options of an article, applies the choices, and writes the order text, the MCF and the production form.</source>
        <translation>Geht von den vorausgewählten Optionen eines Artikels aus, wendet die Wahl an und schreibt Bestelltext, MCF und Produktionsform.</translation>
    </message>
    <message>
        <source>The page count.</source>
        <translation>Die Seitenzahl.</translation>
    </message>
    <message>
        <source>Chooses an option that the article offers; may be given several times.</source>
        <translation>Wählt eine Option, die der Artikel anbietet; mehrfach möglich.</translation>
    </message>
    <message>
        <source>%1 of %2 orders can no longer be ordered as saved</source>
        <translation>%1 von %2 Bestellungen können nicht mehr wie gespeichert bestellt werden</translation>
    </message>
    <message>
        <source>; lines that are no orders: %1</source>
        <translation>; Zeilen, die keine Bestellungen sind: %1</translation>
    </message>
    <message>
        <source>Reads saved orders, one a line (article, page count, which may be empty, and MCF, separated by tabs), and finds those that can no longer be ordered as they were saved: why, and what comes nearest. Exits with 0 when there is none, 1 when there are some, 2 for files that are not readable.</source>
        <translation>Liest gespeicherte Bestellungen, eine je Zeile (Artikel, Seitenzahl, die leer sein darf, und MCF, durch Tabulatoren getrennt), und findet die, die nicht mehr wie gespeichert bestellt werden können: warum, und was am nächsten kommt. Endet mit 0, wenn es keine gibt, 1, wenn es welche gibt, 2 bei Dateien, die nicht lesbar sind.</translation>
    </message>
    <message>
        <source>The saved orders; - for standard input.</source>
        <translation>Die gespeicherten Bestellungen; - für die Standardeingabe.</translation>
    </message>
    <message>
        <source>&apos;orders&apos; needs two files, CATALOGUE and ORDERS</source>
        <translation>&apos;orders&apos; braucht zwei Dateien, CATALOGUE und ORDERS</translation>
    </message>
    <message>
        <source>The page count; the least one by default.</source>
        <translation>Die Seitenzahl; Vorgabe ist die kleinste.</translation>
    </message>
    <message>
        <source>&apos;preview&apos; needs -o OUT</source>
        <translation>&apos;preview&apos; braucht -o OUT</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not end in .svg, .png or .pdf</source>
        <translation>&apos;%1&apos; endet nicht auf .svg, .png oder .pdf</translation>
    </message>
    <message>
        <source>it is the catalogue</source>
        <translation>das ist der Katalog</translation>
    </message>
    <message>
        <source>no font is installed, so the drawing would have no text</source>
        <translation>es ist keine Schrift installiert, also hätte die Zeichnung keinen Text</translation>
    </message>
    <message>
        <source>the drawing cannot be made</source>
        <translation>die Zeichnung kommt nicht zustande</translation>
    </message>
    <message>
        <source>no room for a copy: %1</source>
        <translation>kein Platz für eine Kopie: %1</translation>
    </message>
    <message>
        <source>Shows what the library makes of each article: its number, classifications, page counts, layout and options, the default choice and the box styles.</source>
        <translation>Zeigt, was die Bibliothek aus jedem Artikel macht: Nummer, Einordnungen, Seitenzahlen, Layout und Optionen, die Vorauswahl und die Boxvarianten.</translation>
    </message>
    <message>
        <source>What becomes of a wish for N pages, and how wide the spine is then; may be given several times.</source>
        <translation>Was aus einem Wunsch nach N Seiten wird und wie breit dann der Buchrücken ist; mehrfach möglich.</translation>
    </message>
    <message>
        <source>Shows what the library makes of each article.</source>
        <translation>Zeigt, was die Bibliothek aus jedem Artikel macht.</translation>
    </message>
    <message>
        <source>Finds what the library passes over in silence.</source>
        <translation>Findet, was die Bibliothek stillschweigend übergeht.</translation>
    </message>
    <message>
        <source>Tells what a new catalogue changes for customers.</source>
        <translation>Sagt, was ein neuer Katalog für Kunden ändert.</translation>
    </message>
    <message>
        <source>Writes order text, MCF and production form of a choice.</source>
        <translation>Schreibt Bestelltext, MCF und Produktionsform einer Wahl.</translation>
    </message>
    <message>
        <source>Finds saved orders that can no longer be ordered.</source>
        <translation>Findet Bestellungen, die so nicht mehr bestellbar sind.</translation>
    </message>
    <message>
        <source>Draws the cover of an article to scale.</source>
        <translation>Zeichnet den Einband eines Artikels im Maßstab.</translation>
    </message>
    <message>
        <source>Shows the keyword tables of the classifications.</source>
        <translation>Zeigt die Schlüsselworttabellen der Einordnungen.</translation>
    </message>
    <message>
        <source>
Example:
  %1 show examples/catalogue.xml --article 7301
</source>
        <translation>
Beispiel:
  %1 show examples/catalogue.xml --article 7301
</translation>
    </message>
    <message>
        <source>a command is missing</source>
        <translation>ein Befehl fehlt</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>unbekannter Befehl &apos;%1&apos;</translation>
    </message>
    <message>
        <source>options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 saved order</source>
        <translation>%1 gespeicherte Bestellung</translation>
    </message>
    <message>
        <source>%1 saved orders</source>
        <translation>%1 gespeicherte Bestellungen</translation>
    </message>
    <message>
        <source>no saved order</source>
        <translation>keine gespeicherte Bestellung</translation>
    </message>
    <message>
        <source>%1 of %2 in %3 can no longer be ordered as saved</source>
        <translation>%1 von %2 in %3 können nicht mehr wie gespeichert bestellt werden</translation>
    </message>
    <message>
        <source>; %1 could not before either</source>
        <translation>; %1 konnten es schon zuvor nicht</translation>
    </message>
    <message>
        <source>; the first of them (%1):</source>
        <translation>; die ersten (%1):</translation>
    </message>
    <message>
        <source>        hits %1
</source>
        <translation>        trifft %1
</translation>
    </message>
    <message>
        <source>### Catalogue changes: %1

</source>
        <translation>### Änderungen am Katalog: %1

</translation>
    </message>
    <message>
        <source>From %1 to %2.
</source>
        <translation>Von %1 zu %2.
</translation>
    </message>
    <message>
        <source>
| Kind | Changes | |
| :--- | ---: | :--- |
</source>
        <translation>
| Art | Änderungen | |
| :--- | ---: | :--- |
</translation>
    </message>
    <message>
        <source>%1 change</source>
        <translation>%1 Änderung</translation>
    </message>
    <message>
        <source>%1 changes</source>
        <translation>%1 Änderungen</translation>
    </message>
    <message>
        <source>| Rule | Changes |
| :--- | ---: |
</source>
        <translation>| Regel | Änderungen |
| :--- | ---: |
</translation>
    </message>
    <message>
        <source>| Article | Change | Saved orders | Rule | Old line | New line |
| :--- | :--- | ---: | :--- | ---: | ---: |
</source>
        <translation>| Artikel | Änderung | Gespeicherte Bestellungen | Regel | Alte Zeile | Neue Zeile |
| :--- | :--- | ---: | :--- | ---: | ---: |
</translation>
    </message>
    <message>
        <source>| Article | Change | Rule | Old line | New line |
| :--- | :--- | :--- | ---: | ---: |
</source>
        <translation>| Artikel | Änderung | Regel | Alte Zeile | Neue Zeile |
| :--- | :--- | :--- | ---: | ---: |
</translation>
    </message>
    <message>
        <source>
**Saved orders:** %1.
</source>
        <translation>
**Gespeicherte Bestellungen:** %1.
</translation>
    </message>
    <message>
        <source>
&lt;details&gt;
&lt;summary&gt;%1&lt;/summary&gt;

| Line | Article | Problem | Nearest |
| ---: | ---: | :--- | :--- |
</source>
        <translation>
&lt;details&gt;
&lt;summary&gt;%1&lt;/summary&gt;

| Zeile | Artikel | Grund | Am nächsten |
| ---: | ---: | :--- | :--- |
</translation>
    </message>
    <message>
        <source>The first %1 of them</source>
        <translation>Die ersten %1 davon</translation>
    </message>
    <message>
        <source>These orders</source>
        <translation>Diese Bestellungen</translation>
    </message>
    <message>
        <source>article %1: %2</source>
        <translation>Artikel %1: %2</translation>
    </message>
    <message>
        <source>; hits %1</source>
        <translation>; trifft %1</translation>
    </message>
    <message>
        <source>as it was</source>
        <translation>wie zuvor</translation>
    </message>
    <message>
        <source>no difference</source>
        <translation>kein Unterschied</translation>
    </message>
    <message>
        <source>%1 error</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 Warnung</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
    <message>
        <source>%1 hint</source>
        <translation>%1 Hinweis</translation>
    </message>
    <message>
        <source>%1 hints</source>
        <translation>%1 Hinweise</translation>
    </message>
    <message>
        <source>nothing found</source>
        <translation>nichts gefunden</translation>
    </message>
    <message>
        <source>%1 pages</source>
        <translation>%1 Seiten</translation>
    </message>
    <message>
        <source>the article without options</source>
        <translation>der Artikel ohne Optionen</translation>
    </message>
    <message>
        <source>%1:%2: article %3 %4 [%5]
</source>
        <translation>%1:%2: Artikel %3 %4 [%5]
</translation>
    </message>
    <message>
        <source>    nearest: %1
</source>
        <translation>    am nächsten: %1
</translation>
    </message>
    <message>
        <source>has a %1 of %2 mm; a preview shows sides from %3 to %4 mm</source>
        <translation>hat als %1 %2 mm; eine Vorschau zeigt Seiten von %3 bis %4 mm</translation>
    </message>
    <message>
        <source>page &apos;%1&apos;</source>
        <translation>Seite &apos;%1&apos;</translation>
    </message>
    <message>
        <source>has a bleed of %1 mm; a preview shows 0.0 to %2 mm</source>
        <translation>hat einen Beschnitt von %1 mm; eine Vorschau zeigt 0.0 bis %2 mm</translation>
    </message>
    <message>
        <source>slipcase cover</source>
        <translation>Schuberdecke</translation>
    </message>
    <message>
        <source>Back and front, each</source>
        <translation>Rück- und Vorderseite, je</translation>
    </message>
    <message>
        <source>Spine at %1 pages</source>
        <translation>Rücken bei %1 Seiten</translation>
    </message>
    <message>
        <source>added on each side</source>
        <translation>auf jeder Seite dazu</translation>
    </message>
    <message>
        <source>With bleed</source>
        <translation>Mit Beschnitt</translation>
    </message>
    <message>
        <source>Bleed top, bottom</source>
        <translation>Beschnitt oben, unten</translation>
    </message>
    <message>
        <source>Bleed left, right</source>
        <translation>Beschnitt links, rechts</translation>
    </message>
    <message>
        <source>Slipcase cover</source>
        <translation>Schuberdecke</translation>
    </message>
    <message>
        <source>Barcode on page %1: %2</source>
        <translation>Barcode auf Seite %1: %2</translation>
    </message>
    <message>
        <source>no such page</source>
        <translation>keine solche Seite</translation>
    </message>
    <message>
        <source>its size is not known</source>
        <translation>seine Größe ist nicht bekannt</translation>
    </message>
    <message>
        <source>outside, at %1, %2</source>
        <translation>außerhalb, bei %1, %2</translation>
    </message>
    <message>
        <source>Barcode on page %1</source>
        <translation>Barcode auf Seite %1</translation>
    </message>
    <message>
        <source>has no page sizes</source>
        <translation>hat keine Seitengrößen</translation>
    </message>
    <message>
        <source>has a spine of %1 mm; a preview shows 0.0 to %2 mm</source>
        <translation>hat einen Buchrücken von %1 mm; eine Vorschau zeigt 0.0 bis %2 mm</translation>
    </message>
    <message>
        <source>%1.  Scale 1 : %2, all lengths in millimetres.</source>
        <translation>%1.  Maßstab 1 : %2, alle Längen in Millimetern.</translation>
    </message>
    <message>
        <source>spine %1</source>
        <translation>Rücken %1</translation>
    </message>
    <message>
        <source>outer edge with bleed</source>
        <translation>Außenkante mit Beschnitt</translation>
    </message>
    <message>
        <source>usable area</source>
        <translation>nutzbare Fläche</translation>
    </message>
    <message>
        <source>additional width</source>
        <translation>zusätzliche Breite</translation>
    </message>
    <message>
        <source>barcode without image</source>
        <translation>Barcode ohne Bild</translation>
    </message>
    <message>
        <source>Sizes in mm</source>
        <translation>Größen in mm</translation>
    </message>
    <message>
        <source>Not drawn</source>
        <translation>Nicht gezeichnet</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <source>Usage: %1 COMMAND [FILE] [OPTIONS]
Makes a catalogue of printed photo products visible.

Options:
  -h, --help             Displays this help.
  -v, --version          Displays the versions of the library and of Qt.
  --language &lt;LANGUAGE&gt;  All texts in German (de) or English (en), with
                         any command; by default as the environment says.

Commands (each has a --help of its own):
</source>
        <translation>Aufruf: %1 COMMAND [FILE] [OPTIONS]
Macht einen Katalog von Fotoprodukten sichtbar.

Optionen:
  -h, --help             Zeigt diese Hilfe.
  -v, --version          Zeigt die Versionen der Bibliothek und von Qt.
  --language &lt;LANGUAGE&gt;  Texte auf Deutsch (de) oder Englisch (en), bei jedem
                         Befehl; Vorgabe ist die Sprache der Umgebung.

Befehle (jeder hat ein eigenes --help):
</translation>
    </message>
    <message>
        <source>
Options:
</source>
        <translation>
Optionen:
</translation>
    </message>
    <message>
        <source>
Arguments:
</source>
        <translation>
Argumente:
</translation>
    </message>
    <message>
        <source>Draws every article that has sizes, each on a sheet of its own; needs PDF.</source>
        <translation>Zeichnet jeden Artikel, der Maße hat, jeden auf ein eigenes Blatt; braucht PDF.</translation>
    </message>
    <message>
        <source>Only pages of this type, such as normalpage, or of several, separated by commas. All by default, the cover first.</source>
        <translation>Nur Seiten dieser Art, wie normalpage, oder mehrerer, durch Kommas getrennt. Vorgabe sind alle, der Umschlag zuerst.</translation>
    </message>
    <message>
        <source>svg, png or pdf. By default the ending of OUT says it; for - it is svg, with --all pdf.</source>
        <translation>svg, png oder pdf. Ohne Angabe sagt es die Endung von OUT; für - ist es svg, mit --all pdf.</translation>
    </message>
    <message>
        <source>The width of a PNG, 100 to 8000; 1782 by default.</source>
        <translation>Die Breite eines PNG, 100 bis 8000; Vorgabe ist 1782.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no type of page</source>
        <translation>&apos;%1&apos; ist keine Seitenart</translation>
    </message>
    <message>
        <source>&apos;preview&apos; needs --article or --all</source>
        <translation>&apos;preview&apos; braucht --article oder --all</translation>
    </message>
    <message>
        <source>--all goes with neither --article nor --pages</source>
        <translation>--all geht weder mit --article noch mit --pages</translation>
    </message>
    <message>
        <source>--all needs a PDF, which can have several sheets</source>
        <translation>--all braucht ein PDF, das mehrere Blätter haben kann</translation>
    </message>
    <message>
        <source>--width is for PNG</source>
        <translation>--width ist für PNG</translation>
    </message>
    <message>
        <source>%1: no article can be drawn</source>
        <translation>%1: kein Artikel kann gezeichnet werden</translation>
    </message>
    <message>
        <source>%1: %2 of %3 articles drawn</source>
        <translation>%1: %2 von %3 Artikeln gezeichnet</translation>
    </message>
    <message>
        <source>Draws the cover of an article to scale, and its other kinds of pages below: usable area, bleed, spine, slipcase cover and barcodes, with dimensions in millimetres and the options on offer.</source>
        <translation>Zeichnet den Umschlag eines Artikels maßstäblich und darunter seine anderen Seitenarten: nutzbare Fläche, Beschnitt, Buchrücken, Schuberdecke und Barcodes, mit Maßen in Millimetern und den angebotenen Optionen.</translation>
    </message>
    <message>
        <source>Writes to OUT, whose ending says the format: .svg, .png or .pdf; - for standard output. A file that is there is replaced once the drawing is complete.</source>
        <translation>Schreibt nach OUT, dessen Endung das Format sagt: .svg, .png oder .pdf; - für die Standardausgabe. Eine Datei, die da ist, wird ersetzt, sobald die Zeichnung vollständig ist.</translation>
    </message>
    <message>
        <source>page without type</source>
        <translation>Seite ohne Art</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Umschlag</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Rückseite</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Vorderseite</translation>
    </message>
    <message>
        <source>with bleed</source>
        <translation>mit Beschnitt</translation>
    </message>
    <message>
        <source>%1: the article %2</source>
        <translation>%1: der Artikel %2</translation>
    </message>
    <message>
        <source>%1 more page sizes</source>
        <translation>%1 weitere Seitenmaße</translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 Seite</translation>
    </message>
    <message>
        <source>has no page of type &apos;%1&apos;</source>
        <translation>hat keine Seite der Art &apos;%1&apos;</translation>
    </message>
    <message>
        <source>p. %1</source>
        <translation>S. %1</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>spine</source>
        <translation>Buchrücken</translation>
    </message>
    <message>
        <source>preselected</source>
        <translation>vorausgewählt</translation>
    </message>
    <message>
        <source>free</source>
        <translation>kostenlos</translation>
    </message>
    <message>
        <source>Writes a schema of the catalogue format, with which editors complete and explain elements, attributes and keywords: W3C XML Schema 1.0 (xsd) or RELAX NG (rng).</source>
        <translation>Schreibt ein Schema des Katalogformats, mit dem Editoren Elemente, Attribute und Schlüsselwörter ergänzen und erklären: W3C XML Schema 1.0 (xsd) oder RELAX NG (rng).</translation>
    </message>
    <message>
        <source>Writes to OUT instead of standard output. A file that is there is replaced.</source>
        <translation>Schreibt nach OUT statt auf die Standardausgabe. Eine vorhandene Datei wird ersetzt.</translation>
    </message>
    <message>
        <source>&apos;schema&apos; takes no file</source>
        <translation>&apos;schema&apos; nimmt keine Datei</translation>
    </message>
    <message>
        <source>&apos;schema&apos; needs a name behind -o</source>
        <translation>&apos;schema&apos; braucht einen Namen hinter -o</translation>
    </message>
    <message>
        <source>Writes a schema of the format, for editors.</source>
        <translation>Schreibt ein Schema des Formats, für Editoren.</translation>
    </message>
</context>
</TS>
