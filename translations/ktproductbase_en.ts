<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="de_DE">
<context>
    <name>KTBinding</name>
    <message>
        <source>Hardcover</source>
        <translation>Hardcover</translation>
    </message>
    <message>
        <source>Softcover</source>
        <translation>Softcover</translation>
    </message>
    <message>
        <source>Kalender einseitig</source>
        <translation>Calendar, single-sided</translation>
    </message>
    <message>
        <source>Kalender doppelseitig</source>
        <translation>Calendar, double-sided</translation>
    </message>
    <message>
        <source>1-Seiten-Kalender</source>
        <translation>1-page calendar</translation>
    </message>
    <message>
        <source>2-Seiten-Jahresplaner</source>
        <translation>2-page year planner</translation>
    </message>
    <message>
        <source>Heft</source>
        <translation>Booklet</translation>
    </message>
    <message>
        <source>Leinen</source>
        <translation>Linen</translation>
    </message>
    <message>
        <source>Leder</source>
        <translation>Leather</translation>
    </message>
    <message>
        <source>Kunststoff-Spiralbindung</source>
        <translation>Plastic spiral binding</translation>
    </message>
    <message>
        <source>Individuell gestaltbarer elastischer Einband mit Klebebindung.
Das Cover ist vollständig gestaltbar.</source>
        <translation>Flexible cover of your own design, with adhesive binding.
All of the cover can be designed.</translation>
    </message>
    <message>
        <source>Stabiler und individuell gestaltbarer Festeinband mit Klebebindung.
Das Cover ist vollständig gestaltbar.</source>
        <translation>Sturdy hard cover of your own design, with adhesive binding.
All of the cover can be designed.</translation>
    </message>
    <message>
        <source>Einseitig bedruckte Kalender eignen sich besonders zum Aufhängen,
da die leere Seite zur Wand zeigt, und daher nicht gesehen werden kann.</source>
        <translation>Calendars printed on one side are made to be hung up:
the empty side faces the wall, where it is not seen.</translation>
    </message>
    <message>
        <source>Doppelseitig bedruckte Kalender eignen sich besonders zum auf-den-Tisch-Legen.</source>
        <translation>Calendars printed on both sides are made to lie on a table.</translation>
    </message>
    <message>
        <source>Ein großformatiger Einseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.
Alles auf einen Blick.</source>
        <translation>A large calendar printed on one side shows the whole year.
All of it at a glance.</translation>
    </message>
    <message>
        <source>Ein großformatiger Beidseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.
Alles auf einen Blick.</source>
        <translation>A large calendar printed on both sides shows the whole year.
All of it at a glance.</translation>
    </message>
    <message>
        <source>Individuell gestaltbarer flexibler Einband mit Rückstichbindung.</source>
        <translation>Flexible cover of your own design, with saddle stitching.</translation>
    </message>
    <message>
        <source>Der hochwertige Leinen-Einband ist in verschiedenen Farben erhältlich.</source>
        <translation>The fine linen cover comes in several colours.</translation>
    </message>
    <message>
        <source>Der hochwertige Leder-Einband ist in verschiedenen Farben erhältlich.</source>
        <translation>The fine leather cover comes in several colours.</translation>
    </message>
    <message>
        <source>unbekannter Bindungstyp</source>
        <translation>unknown type of binding</translation>
    </message>
    <message>
        <source>%1
%2</source>
        <translation>%1
%2</translation>
    </message>
    <message>
        <source>Das Cover kann nur mit veredelten Elementen gestaltet werden.</source>
        <translation>The cover can be designed with finished elements only.</translation>
    </message>
</context>
<context>
    <name>KTDlpType</name>
    <message>
        <source>Hintergründe</source>
        <translation>Backgrounds</translation>
    </message>
    <message>
        <source>Stile</source>
        <translation>Styles</translation>
    </message>
    <message>
        <source>Designs</source>
        <translation>Designs</translation>
    </message>
    <message>
        <source>Cliparts</source>
        <translation>Clip art</translation>
    </message>
    <message>
        <source>Masken &amp; Rahmen</source>
        <translation>Masks &amp; frames</translation>
    </message>
    <message>
        <source>Buchvorlagen</source>
        <translation>Book templates</translation>
    </message>
</context>
<context>
    <name>KTFotoPaperType</name>
    <message>
        <source>Unbekanntes Fotopapier</source>
        <translation>Unknown photo paper</translation>
    </message>
    <message>
        <source>Glänzend</source>
        <translation>Glossy</translation>
    </message>
    <message>
        <source>Matt</source>
        <translation>Matte</translation>
    </message>
</context>
<context>
    <name>KTOrientation</name>
    <message>
        <source>Hochkant-</source>
        <translation>portrait </translation>
    </message>
    <message>
        <source>Panorama-</source>
        <translation>panorama </translation>
    </message>
    <message>
        <source>quadratische </source>
        <translation>square </translation>
    </message>
    <message>
        <source>schlanke Hochkant-</source>
        <translation>slim portrait </translation>
    </message>
    <message>
        <source>schlanke Panorama-</source>
        <translation>slim panorama </translation>
    </message>
</context>
<context>
    <name>KTPageAlignment</name>
    <message>
        <source>links</source>
        <translation>on the left</translation>
    </message>
    <message>
        <source>rechts</source>
        <translation>on the right</translation>
    </message>
    <message>
        <source>auf dem Buchrücken</source>
        <translation>on the spine</translation>
    </message>
    <message>
        <source>auf dieser Seite</source>
        <translation>on this page</translation>
    </message>
    <message>
        <source>oben</source>
        <translation>at the top</translation>
    </message>
    <message>
        <source>unten</source>
        <translation>at the bottom</translation>
    </message>
    <message>
        <source>mittig</source>
        <translation>in the middle</translation>
    </message>
</context>
<context>
    <name>KTPageBinding</name>
    <message>
        <source>klassische Buchbindung</source>
        <translation>classic book binding</translation>
    </message>
    <message>
        <source>Lay-Flat-Bindung</source>
        <translation>Layflat binding</translation>
    </message>
    <message>
        <source>Rückstichbindung</source>
        <translation>Saddle stitching</translation>
    </message>
</context>
<context>
    <name>KTPageCountOrganizationListModel</name>
    <message>
        <source>%1 Fotos</source>
        <translation>%1 photos</translation>
    </message>
    <message>
        <source>%1 Seiten</source>
        <translation>%1 pages</translation>
    </message>
</context>
<context>
    <name>KTPaperType</name>
    <message>
        <source>Digitaldruck Matt</source>
        <translation>Digital print, matte</translation>
    </message>
    <message>
        <source>Digitaldruck Hochglanz</source>
        <translation>Digital print, high gloss</translation>
    </message>
    <message>
        <source>Fotopapier Matt</source>
        <translation>Photo paper, matte</translation>
    </message>
    <message>
        <source>Fotopapier Glänzend</source>
        <translation>Photo paper, glossy</translation>
    </message>
    <message>
        <source>Premiumpapier</source>
        <translation>Premium paper</translation>
    </message>
    <message>
        <source>Digitaldruck Premium-Matt</source>
        <translation>Digital print, premium matte</translation>
    </message>
    <message>
        <source>Fotopapier Premium-Matt</source>
        <translation>Photo paper, premium matte</translation>
    </message>
    <message>
        <source>Digitaldruck Matt (100% recycelt)</source>
        <translation>Digital print, matte (100% recycled)</translation>
    </message>
    <message>
        <source>unbekannter Papiertyp</source>
        <translation>unknown type of paper</translation>
    </message>
</context>
<context>
    <name>KTSpaceMagnitude</name>
    <message>
        <source>Mini</source>
        <translation>Mini</translation>
    </message>
    <message>
        <source>Klein</source>
        <translation>Small</translation>
    </message>
    <message>
        <source>Compact Quadratisch</source>
        <translation>Compact square</translation>
    </message>
    <message>
        <source>Compact</source>
        <translation>Compact</translation>
    </message>
    <message>
        <source>A5</source>
        <translation>A5</translation>
    </message>
    <message>
        <source>Quadratisch</source>
        <translation>Square</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>XL</source>
        <translation>XL</translation>
    </message>
    <message>
        <source>A3</source>
        <translation>A3</translation>
    </message>
    <message>
        <source>XXL</source>
        <translation>XXL</translation>
    </message>
    <message>
        <source>A2</source>
        <translation>A2</translation>
    </message>
    <message>
        <source>Undefiniert</source>
        <translation>Undefined</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Fotobuch</source>
        <translation>Photo book</translation>
    </message>
    <message>
        <source>Fotos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Poster und Wandbilder</source>
        <translation>Posters and wall art</translation>
    </message>
    <message>
        <source>Kalender</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>Grußkarten</source>
        <translation>Greeting cards</translation>
    </message>
    <message>
        <source>Fotogeschenke</source>
        <translation>Photo gifts</translation>
    </message>
</context>
</TS>
