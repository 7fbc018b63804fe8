#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Tressel developers
# SPDX-License-Identifier: MIT

"""Makes click.wav, the sound of a pressed button: 45 ms, 44.1 kHz, 16 bit, one channel.

Two short wooden taps, 14 ms apart: each a pair of damped tones with a soft start, no noise and no chance
in it, so that the file comes out the same to the byte each time.
"""

import math
import pathlib
import struct
import wave

RATE = 44100
SECONDS = 0.045
# Start in seconds, loudness, tones as (hertz, share, seconds until 1/e).
TAPS = [
    (0.000, 0.42, [(1850.0, 0.6, 0.0028), (620.0, 0.4, 0.0060)]),
    (0.014, 0.24, [(1400.0, 0.5, 0.0030), (470.0, 0.5, 0.0070)]),
]


def tap(time, loudness, tones):
    if time < 0:
        return 0.0
    start = min(1.0, time / 0.0006)
    return loudness * start * sum(
        share * math.sin(2 * math.pi * hertz * time) * math.exp(-time / fade) for hertz, share, fade in tones)


def main():
    count = int(RATE * SECONDS)
    samples = []
    for index in range(count):
        time = index / RATE
        # The last 5 ms run down to silence, so that the end makes no click of its own.
        end = min(1.0, (count - 1 - index) / (0.005 * RATE))
        samples.append(end * sum(tap(time - start, loudness, tones) for start, loudness, tones in TAPS))
    with wave.open(str(pathlib.Path(__file__).with_name("click.wav")), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(b"".join(struct.pack("<h", round(32767 * sample)) for sample in samples))


if __name__ == "__main__":
    main()
