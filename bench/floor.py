# SPDX-License-Identifier: MIT
"""How much of our time is the two libraries' own: drawing and encoding with nothing around them."""

import json
import subprocess

from contenders import LIKE_OURS, SCALE


def bare_seconds(probe, document, result):
    """Processor seconds of drawing and encoding the same pages, grey and chroma chosen as we did."""
    orders = "".join(f"{number - 1} {components} {sampling}\n"
                     for number, (components, sampling) in sorted(result.encodings.items()))
    quality = LIKE_OURS[result.contender.quality_level]
    probing = subprocess.run([probe, document.path, str(SCALE), str(quality)], input=orders,
                             capture_output=True, text=True, check=True)
    return json.loads(probing.stdout)
