#!/usr/bin/env python3
"""Writes a catalogue of ARTICLES articles to standard output, the same one for the same SEED."""

import random
import sys

COLOURS = ("black", "red", "sand", "white", "anthracite", "nightblue", "olive", "linen", "oak", "gold", "silver", "rose")
SIZES = (("A4", "portrait", 210, 280), ("A5", "portrait", 148, 210), ("A3", "landscape", 420, 297))
COVERS = ("HARDCOVER", "BOOKLET", "CROMOLINEN")
PAPERS = ("digital_printing_standard", "digital_printing_premium", "photopaper_matt")
BLEED = 'bleed_top="3" bleed_bottom="3" bleed_left="3" bleed_right="3"'


def option(pick, number):
    key, name = (("alcolor", "Einbandfarbe"), ("flyleafcolor", "Vorsatzpapier"), ("coverphoto", "Titelfoto"))[number // 4]
    value = COLOURS[number]
    return (f'      <form key="{key}" key_name="{name}" value="{value}" value_name="Ausführung {value.capitalize()}" '
            f'editor_name="cover" preview="previews/{key}_{value}_{pick.randrange(1000):03}.png" color="#{pick.randrange(1 << 24):06x}"'
            + (' preselected="true"' if number % 4 == 0 else "")
            + (' not_accountable="true"' if pick.random() < 0.3 else "") + "/>")


def article(pick, number):
    size, orientation, width, height = pick.choice(SIZES)
    pages, step = 2 * pick.randint(10, 20), pick.choice((2, 4, 8))
    last = pages + step * pick.randint(10, 20)
    album = pick.randint(1, 60)
    barcodes = "\n".join(
        f'      <barcode pageNr="{page}" position_x="{12 + pick.randint(0, 99)}" position_y="{height - offset}" '
        f'width="30" height="10"/>' for page, offset in ((0, 12), (last, 24)))
    options = "\n".join(option(pick, i) for i in range(12))
    return f"""  <article art_id="{number}" name="Fotobuch {size} Nr. {number}"
           article_class="book" arrangement="photobook" space_magnitude="{size}" orientation="{orientation}" cover_type="{pick.choice(COVERS)}" binding="{pick.choice(("glue", "layflat"))}" paper="{pick.choice(PAPERS)}" spot_colors="gold, silver" productname="ALB{album}" price_class="ALB{album}" shipping_group="{pick.randint(1, 30)}"
           pages="{pages}" max_pages="{last}" page_step="{step}">
    <composition units="mm">
      <spine packages_per_block="{pick.randint(1, 8)}" base_width="6.0" block_width="1.6" additional_width="0.8"/>
    </composition>
    <page type="fullcover" alignment="left, right" units="mm" width="{width}" height="{height}" {BLEED}/>
    <page type="normalpage" alignment="left, right" units="mm" width="{width - 5}" height="{height - 5}" {BLEED}/>
    <barcodes units="mm">
{barcodes}
    </barcodes>
    <forms>
{options}
    </forms>
  </article>
"""


def main(articles, seed):
    pick = random.Random(seed)
    sys.stdout.reconfigure(encoding="utf-8", newline="\n")
    sys.stdout.write('<?xml version="1.0" encoding="UTF-8"?>\n<catalogue>\n')
    for number in range(1, articles + 1):
        # The two advent calendars with printed door backs ignore page counts, so their numbers are left out.
        sys.stdout.write(article(pick, number + 1_000_000))
    sys.stdout.write("</catalogue>\n")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(f"usage: {sys.argv[0]} ARTICLES SEED")
    main(int(sys.argv[1]), int(sys.argv[2]))
