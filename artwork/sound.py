#!/usr/bin/env python3
"""Writes the alarm: a rising chord, like struck glass bells."""

import math
import struct
import sys
import wave

RATE = 44100
LENGTH = 1.2
PEAK = 0.708  # -3 dB
ATTACK = 0.008
FADE = 0.12  # the tail fades to silence, as a cut would click
TONES = ((0.0, 659.26), (0.14, 880.0), (0.28, 1108.73))  # start in seconds, pitch in Hz
PARTIALS = ((1, 1.0, 4.5), (2, 0.35, 7.0), (3.01, 0.12, 11.0))  # multiple, loudness, decay


def sample(t):
    value = 0.0
    for start, pitch in TONES:
        age = t - start
        if age <= 0:
            continue
        rise = 0.5 - 0.5 * math.cos(math.pi * min(1.0, age / ATTACK))
        for multiple, loudness, decay in PARTIALS:
            value += rise * loudness * math.exp(-decay * age) * math.sin(2 * math.pi * pitch * multiple * age)
    return value * (0.5 - 0.5 * math.cos(math.pi * min(1.0, (LENGTH - t) / FADE)))


samples = [sample(i / RATE) for i in range(int(RATE * LENGTH) + 1)]
scale = 32767 * PEAK / max(map(abs, samples))
with wave.open(sys.argv[1], "wb") as out:
    out.setnchannels(1)
    out.setsampwidth(2)
    out.setframerate(RATE)
    out.writeframes(struct.pack(f"<{len(samples)}h", *(round(s * scale) for s in samples)))
