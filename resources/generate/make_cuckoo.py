#!/usr/bin/env python3
"""Synthesizes cuckoo.wav: a soft two-note call, a falling major third."""
import math
import struct
import sys
import wave

RATE = 22050


def note(freq, seconds, volume=0.55):
    samples = []
    n = int(RATE * seconds)
    for i in range(n):
        t = i / RATE
        attack = min(1.0, t / 0.02)
        decay = math.exp(-3.5 * t / seconds)
        release = min(1.0, (n - 1 - i) / (RATE * 0.015))  # no click at the end of a note
        tone = math.sin(2 * math.pi * freq * t) + 0.25 * math.sin(4 * math.pi * freq * t)
        samples.append(volume * attack * decay * release * tone / 1.25)
    return samples


def main(path):
    call = note(659.3, 0.28) + [0.0] * int(RATE * 0.06) + note(523.3, 0.42)
    with wave.open(path, "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(b"".join(struct.pack("<h", int(max(-1, min(1, s)) * 32767)) for s in call))


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else "cuckoo.wav")
