#!/usr/bin/env python3
"""Makes the seven event sounds of the program folder's Sounds/ (alarms, bell, connection up
and down, own digipeat) as short, soft tones: 22050 Hz, 16-bit mono WAV, each note with a gentle
attack and a bell-like decay so nothing clicks. The files are committed; run this again only to
change them.
Usage: python3 scripts/make_sounds.py [output folder, default data/Sounds]
"""

import math
import os
import struct
import sys
import wave

RATE = 22050


def note(freq, seconds, volume=0.35, decay=4.0, partials=((1.0, 1.0), (2.0, 0.25), (3.0, 0.08))):
    """One note: a few harmonics under an attack of 8 ms and an exponential decay."""
    samples = []
    count = int(RATE * seconds)
    attack = int(RATE * 0.008)
    for i in range(count):
        t = i / RATE
        env = math.exp(-decay * t)
        if i < attack:
            env *= i / attack
        # A short fade at the very end, so the note stops at zero.
        tail = count - i
        if tail < attack:
            env *= tail / attack
        v = sum(a * math.sin(2 * math.pi * freq * m * t) for m, a in partials)
        samples.append(volume * env * v / sum(a for _, a in partials))
    return samples


def silence(seconds):
    return [0.0] * int(RATE * seconds)


def bell(freq, seconds):
    # Inharmonic partials give the ring of a small hand bell.
    return note(freq, seconds, volume=0.3, decay=3.0,
                partials=((1.0, 1.0), (2.76, 0.35), (5.4, 0.15), (8.93, 0.05)))


def mix(*parts):
    out = []
    for p in parts:
        out.extend(p)
    return out


SOUNDS = {
    # Alarm in a header: two rising notes, a fifth apart.
    "_Alarm.wav": mix(note(659.3, 0.16, decay=6), note(987.8, 0.34, decay=5)),
    # Alarm in the data: three rising notes of a major chord.
    "_Alarm1.wav": mix(note(523.3, 0.12, decay=7), note(659.3, 0.12, decay=7),
                       note(784.0, 0.32, decay=5)),
    # Spare alarm: a falling fourth.
    "_Alarm2.wav": mix(note(880.0, 0.16, decay=6), note(659.3, 0.34, decay=5)),
    # Bell (a paging station): one soft strike.
    "_Bell.wav": bell(1046.5, 0.7),
    # Connection up: a quick upward arpeggio.
    "_Connection.wav": mix(note(523.3, 0.09, decay=9), note(659.3, 0.09, decay=9),
                           note(784.0, 0.09, decay=9), note(1046.5, 0.28, decay=6)),
    # Connection down: the same, downwards and lower.
    "_Disconnected.wav": mix(note(784.0, 0.09, decay=9), note(659.3, 0.09, decay=9),
                             note(523.3, 0.09, decay=9), note(392.0, 0.30, decay=6)),
    # Own digipeat: a short double chirp, high and light.
    "_Digi.wav": mix(note(1568.0, 0.07, volume=0.25, decay=14), silence(0.04),
                     note(2093.0, 0.12, volume=0.25, decay=12)),
}


def write(path, samples):
    frames = b"".join(struct.pack("<h", int(max(-1.0, min(1.0, s)) * 32767)) for s in samples)
    with wave.open(path, "wb") as w:
        w.setnchannels(1)
        w.setsampwidth(2)
        w.setframerate(RATE)
        w.writeframes(frames)


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, "..", "data", "Sounds")
    os.makedirs(folder, exist_ok=True)
    for name, samples in SOUNDS.items():
        write(os.path.join(folder, name), samples)
        print(f"{name}: {len(samples) / RATE:.2f} s")


if __name__ == "__main__":
    main()
