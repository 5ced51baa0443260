"""What the sounds are made with: tones, noise, a small room, and their loudness.

A `Track` is a list of channels, each a list of samples around -1..1. Times are
seconds, pitches hertz. Nothing here takes anything from the clock or from a
random source, so that the same recipe gives the same samples.
"""
import math

# Relative pitch, strength and decay (seconds) of what rings in each instrument.
MALLET = ((1, 1.0, 0.32), (2, 0.12, 0.20), (3.93, 0.22, 0.07), (9.2, 0.05, 0.02))
BELL = ((1, 1.0, 0.45), (2, 0.35, 0.32), (2.76, 0.16, 0.16), (5.40, 0.07, 0.07))
PLUCK = tuple((n, 1.0 / n ** 1.5, 0.30 / n ** 0.7) for n in range(1, 9))
HORN = tuple((n, 1.0 / n ** 1.7, 60.0) for n in range(1, 8))


class Lcg:
    """A 32-bit linear congruential generator; the same numbers on every machine."""

    def __init__(self, seed):
        self.state = seed

    def next(self):
        """Uniform in [0, 1)."""
        self.state = (self.state * 1664525 + 1013904223) & 0xFFFFFFFF
        return self.state / 2 ** 32


class Track:
    def __init__(self, frames, channels=2, rate=44100):
        self.rate = rate
        self.channels = [[0.0] * frames for _ in range(channels)]

    def add(self, start, samples, pan=0.0):
        """Mixes samples in; `pan` runs from -1 (left) to 1, at equal power."""
        first = round(start * self.rate)
        angle = (pan + 1) * math.pi / 4
        gains = [1.0] if len(self.channels) == 1 else [math.cos(angle), math.sin(angle)]
        for channel, gain in zip(self.channels, gains):
            for i, sample in enumerate(samples[: len(channel) - first], first):
                channel[i] += gain * sample


def ramp(x):
    """A raised cosine from 0 to 1, so that nothing begins or ends with a click."""
    return 0.5 - 0.5 * math.cos(math.pi * min(max(x, 0.0), 1.0))


def tone(rate, length, pitch, instrument, attack=0.004, release=0.03, end_pitch=None, vibrato=0.0):
    """One note; with `end_pitch` it glides there over its whole length."""
    count = round(length * rate)
    phases, phase = [], 0.0
    for i in range(count):
        at = i / count
        now = pitch if end_pitch is None else pitch * (end_pitch / pitch) ** (at * at)
        phases.append(phase)
        phase += 2 * math.pi * now * (1 + vibrato * math.sin(2 * math.pi * 5.5 * i / rate)) / rate
    out = [0.0] * count
    for ratio, gain, decay in instrument:
        if max(pitch, end_pitch or 0) * ratio > 0.45 * rate:
            continue
        for i in range(count):
            out[i] += gain * math.exp(-i / (decay * rate)) * math.sin(ratio * phases[i])
    return shaped(out, rate, attack, release)


def shaped(samples, rate, attack, release):
    """The samples with a soft beginning and a soft end."""
    rise, fall, count = max(attack * rate, 1), max(release * rate, 1), len(samples)
    return [s * ramp(i / rise) * ramp((count - 1 - i) / fall) for i, s in enumerate(samples)]


def thump(rate, length, pitch, end_pitch, decay):
    """A struck skin or board: its pitch falls quickly while it dies away."""
    out, phase = [], 0.0
    for i in range(round(length * rate)):
        t = i / rate
        out.append(math.sin(phase) * math.exp(-t / decay))
        phase += 2 * math.pi * (end_pitch + (pitch - end_pitch) * math.exp(-t / (decay / 2))) / rate
    return shaped(out, rate, 0.003, 0.04)


def noise(rate, length, cutoff, decay, seed):
    """Dull noise: two one-pole low passes at `cutoff`, dying away."""
    random, keep = Lcg(seed), math.exp(-2 * math.pi * cutoff / rate)
    first = second = 0.0
    out = []
    for i in range(round(length * rate)):
        first = keep * first + (1 - keep) * (2 * random.next() - 1)
        second = keep * second + (1 - keep) * first
        out.append(second * math.exp(-i / (decay * rate)))
    return shaped(out, rate, 0.002, 0.03)


def room(track, wet):
    """Adds a small, dark room: four damped combs and two all-passes a channel."""
    for side, channel in enumerate(track.channels):
        spread = 23 * side
        total = [0.0] * len(channel)
        for delay in (1116, 1188, 1277, 1356):
            _add_comb(total, channel, (delay + spread) * track.rate // 44100)
        for delay in (556, 441):
            total = _all_pass(total, (delay + spread) * track.rate // 44100)
        for i, sample in enumerate(total):
            channel[i] += wet * sample


def _add_comb(total, samples, delay, feedback=0.72, damp=0.35):
    line, at, low = [0.0] * delay, 0, 0.0
    for i, sample in enumerate(samples):
        echo = line[at]
        low = echo * (1 - damp) + low * damp
        line[at] = sample + feedback * low
        at = (at + 1) % delay
        total[i] += 0.25 * echo


def _all_pass(samples, delay, gain=0.5):
    line, at, out = [0.0] * delay, 0, []
    for sample in samples:
        echo = line[at]
        out.append(echo - sample)
        line[at] = sample + gain * echo
        at = (at + 1) % delay
    return out


def biquad(samples, b0, b1, b2, a1, a2):
    x1 = x2 = y1 = y2 = 0.0
    out = []
    for x in samples:
        y = b0 * x + b1 * x1 + b2 * x2 - a1 * y1 - a2 * y2
        x2, x1, y2, y1 = x1, x, y1, y
        out.append(y)
    return out


def _k_weighted(samples, rate):
    """The two filters of ITU-R BS.1770: what the head and the ear do to loudness."""
    k, q, gain = math.tan(math.pi * 1681.974 / rate), 0.7071752, 10 ** (3.99984 / 20)
    root, a0 = gain ** 0.4996668, 1 + k / q + k * k
    shelf = ((gain + root * k / q + k * k) / a0, 2 * (k * k - gain) / a0,
             (gain - root * k / q + k * k) / a0, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0)
    k, q = math.tan(math.pi * 38.13547 / rate), 0.5003270
    a0 = 1 + k / q + k * k
    high_pass = (1.0, -2.0, 1.0, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0)
    return biquad(biquad(samples, *shelf), *high_pass)


def loudness(track):
    """LUFS of the loudest 0.4 s, without gating: these sounds are too short for it."""
    window = round(0.4 * track.rate)
    energy = [0.0]
    weighted = [_k_weighted(channel, track.rate) for channel in track.channels]
    for frame in zip(*weighted):
        energy.append(energy[-1] + sum(s * s for s in frame))
    # One channel is heard from both loudspeakers.
    twice = 2 if len(weighted) == 1 else 1
    ends = range(window, len(energy), 64)
    return -0.691 + 10 * math.log10(twice * max(energy[e] - energy[e - window] for e in ends) / window)


def finish(track, lufs, peak, fade):
    """Fades the end out and sets the level: as loud as asked for, below `peak` (of 1)."""
    for i, channel in enumerate(track.channels):
        # Without what no loudspeaker plays, and without a direct current.
        channel = biquad(channel, *_rumble_filter(track.rate))
        track.channels[i] = shaped(channel, track.rate, 0.001, fade)
    gain = 10 ** ((lufs - loudness(track)) / 20)
    highest = max(abs(s) for channel in track.channels for s in channel)
    gain = min(gain, peak / highest)
    track.channels = [[gain * s for s in channel] for channel in track.channels]


def _rumble_filter(rate, cutoff=30.0):
    k, q = math.tan(math.pi * cutoff / rate), math.sqrt(0.5)
    a0 = 1 + k / q + k * k
    return 1 / a0, -2 / a0, 1 / a0, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0
