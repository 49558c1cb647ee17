#!/usr/bin/env python3
"""Writes COUNT saved orders of a catalogue of ARTICLES articles that generate_catalogue.py made, the same for the same SEED.

About one in twenty cannot be ordered.
"""

import random
import sys

from generate_catalogue import COLOURS


def main(count, articles, seed):
    pick = random.Random(seed)
    write = sys.stdout.write
    for _ in range(count):
        article = 1_000_000 + pick.randint(1, articles)
        choice = [f"alcolor:{COLOURS[pick.randrange(4)]}", f"flyleafcolor:{COLOURS[4 + pick.randrange(4)]}"]
        if pick.random() < 0.5:
            choice.append(f"coverphoto:{COLOURS[8 + pick.randrange(4)]}")
        if pick.random() < 0.05:
            choice.append("alcolor:purple")
        write(f"{article}\t\t{','.join(choice)}\n")


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(f"usage: {sys.argv[0]} COUNT ARTICLES SEED")
    main(int(sys.argv[1]), int(sys.argv[2]), int(sys.argv[3]))
