#!/usr/bin/python3
"""Makes the seven sounds of the game, 101.wav to 107.wav, from nothing but arithmetic.

  ./make_sounds.py           writes them beside this file
  ./make_sounds.py --check   makes them in a temporary folder and compares byte for byte

Needs Python 3 and, for the three that are stored as MPEG Layer 3, the `lame`
command (made with 3.100; another version may give other bytes of the same sound).
All of them are in C major, so that they belong together.
"""
import argparse
import pathlib
import sys
import tempfile

from synth import BELL, HORN, MALLET, PLUCK, Lcg, Track, finish, noise, room, thump, tone
from wave_files import mp3_input_frames, mp3_wave, pcm_wave

HERE = pathlib.Path(__file__).resolve().parent
RATE = 44100
C5, E5, G5, C6, E6, G6 = 523.25, 659.26, 783.99, 1046.50, 1318.51, 1567.98


def level(decibels):
    return 10 ** (decibels / 20)


def scaled(samples, gain):
    return [gain * s for s in samples]


def mp3_track(frames):
    return Track(mp3_input_frames(frames))


def pcm_track(seconds):
    return Track(round(seconds * RATE))


def menu_chime():
    """Two soft mallet strokes, a fifth apart."""
    track = mp3_track(51)
    track.add(0.00, tone(RATE, 1.2, G5, MALLET, attack=0.012), -0.15)
    track.add(0.14, tone(RATE, 1.1, G5 * 1.5, MALLET, attack=0.012), 0.15)
    track.add(0.00, scaled(tone(RATE, 1.2, C5 / 2, HORN[:2], attack=0.2, release=0.8), 0.15))
    room(track, 0.5)
    finish(track, -18, level(-3), 0.25)
    return mp3_wave(track, 51)


def new_game():
    """A bright motif that runs upwards and stays on its highest note."""
    track = mp3_track(44)
    for i, pitch in enumerate((C5, E5, G5, C6)):
        track.add(0.085 * i, tone(RATE, 0.5, pitch, PLUCK), -0.3 + 0.2 * i)
        track.add(0.085 * i, scaled(tone(RATE, 0.5, pitch, MALLET), 0.6), -0.3 + 0.2 * i)
    track.add(0.34, tone(RATE, 0.75, E6, BELL), 0.2)
    track.add(0.34, scaled(tone(RATE, 0.75, G5, PLUCK), 0.7), -0.2)
    room(track, 0.4)
    finish(track, -16, level(-3), 0.2)
    return mp3_wave(track, 44)


def lost():
    """Two steps down, a slide, and a soft landing."""
    track = pcm_track(0.90)
    track.add(0.00, tone(RATE, 0.17, 392.00, HORN, attack=0.012, release=0.05))
    track.add(0.15, tone(RATE, 0.17, 369.99, HORN, attack=0.012, release=0.05), -0.1)
    track.add(0.30, tone(RATE, 0.36, 349.23, HORN, attack=0.012, release=0.10,
                         end_pitch=123.47, vibrato=0.012), 0.1)
    track.add(0.62, scaled(thump(RATE, 0.26, 150, 62, 0.085), 2.2))
    track.add(0.62, scaled(noise(RATE, 0.20, 700, 0.035, seed=103), 5.0))
    room(track, 0.25)
    finish(track, -16, level(-1.5), 0.08)
    return pcm_wave(track)


def mistake():
    """A dull double knock on wood."""
    track = pcm_track(0.53)
    for start, pitch, gain, pan in ((0.0, 233.08, 1.0, -0.12), (0.125, 174.61, 0.85, 0.12)):
        track.add(start, scaled(thump(RATE, 0.30, pitch * 1.3, pitch, 0.075), gain), pan)
        track.add(start, scaled(thump(RATE, 0.12, pitch * 2.6, pitch * 2.42, 0.028), 0.35 * gain), pan)
        track.add(start, scaled(noise(RATE, 0.08, 1500, 0.011, seed=104), 1.6 * gain), pan)
    room(track, 0.2)
    finish(track, -17, level(-1.5), 0.12)
    return pcm_wave(track)


def victory():
    """A fanfare: an arpeggio, the whole chord, and sparks above it."""
    track = pcm_track(1.62)
    for i, pitch in enumerate((C5, E5, G5, C6)):
        track.add(0.10 * i, tone(RATE, 0.20, pitch, HORN, attack=0.01, release=0.08), -0.3 + 0.2 * i)
        track.add(0.10 * i, scaled(tone(RATE, 0.40, pitch * 2, BELL), 0.3), -0.3 + 0.2 * i)
    for pitch, pan in ((C5, -0.35), (E5, -0.1), (G5, 0.1), (C6, 0.35)):
        chord = tone(RATE, 1.12, pitch, HORN, attack=0.03, release=0.75, vibrato=0.004)
        track.add(0.42, scaled(chord, 0.55), pan)
    random = Lcg(105)
    for i in range(14):
        pitch = (C6, E6, G6)[int(3 * random.next())] * (2 if random.next() < 0.6 else 1)
        gain = 0.22 * (1 - i / 18)
        track.add(0.45 + 0.062 * i, scaled(tone(RATE, 0.28, pitch, BELL), gain),
                  1.2 * random.next() - 0.6)
    room(track, 0.4)
    finish(track, -16, level(-1.5), 0.2)
    return pcm_wave(track)


def good_letter():
    """One light bell with a grace note."""
    track = mp3_track(30)
    track.add(0.00, scaled(tone(RATE, 0.25, G5, PLUCK), 0.5), -0.15)
    track.add(0.05, tone(RATE, 0.65, C6, BELL), 0.1)
    room(track, 0.35)
    finish(track, -17, level(-3), 0.2)
    return mp3_wave(track, 30)


def tick():
    """Two coarse blips and their echo, on a small old loudspeaker."""
    rate = 16000
    track = Track(round(0.90 * rate), channels=1, rate=rate)
    odd = tuple((n, 1.0 / n, 0.09) for n in (1, 3, 5))
    for start, gain in ((0.01, 1.0), (0.31, 0.4), (0.58, 0.16)):
        track.add(start, scaled(tone(rate, 0.07, C5, odd, release=0.02), gain))
        track.add(start + 0.09, scaled(tone(rate, 0.10, G5, odd, release=0.03), gain))
    finish(track, -20, level(-3), 0.05)
    steps = 64
    track.channels = [[round(s * steps) / steps for s in c] for c in track.channels]
    return pcm_wave(track)


SOUNDS = {101: menu_chime, 102: new_game, 103: lost, 104: mistake,
          105: victory, 106: good_letter, 107: tick}


def make(folder):
    for number, recipe in SOUNDS.items():
        (folder / f"{number}.wav").write_bytes(recipe())


def check():
    """Whether what lies beside this file is what it makes."""
    with tempfile.TemporaryDirectory() as name:
        fresh = pathlib.Path(name)
        make(fresh)
        changed = [n for n in SOUNDS if (fresh / f"{n}.wav").read_bytes()
                   != (HERE / f"{n}.wav").read_bytes()]
    for number in changed:
        print(f"{number}.wav is not what make_sounds.py makes", file=sys.stderr)
    return not changed


def main():
    parser = argparse.ArgumentParser(description="Makes the seven sounds of the game.")
    parser.add_argument("--check", action="store_true", help="compare, write nothing")
    if parser.parse_args().check:
        return 0 if check() else 1
    make(HERE)
    return 0


if __name__ == "__main__":
    sys.exit(main())
