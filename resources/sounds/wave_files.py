"""Writes tracks as WAVE files: plain PCM, or MPEG Layer 3 frames from `lame`."""
import struct
import subprocess
import sys
from array import array

MP3_FRAME = 1152        # samples a frame and channel
MP3_BITRATE = 160       # kbit/s
# Decoded Layer 3 begins this much later than what went in (encoder 576, decoder 529).
MP3_DELAY = 1105

# Constant bit rate, no Xing frame, no tag, nothing taken from the machine.
LAME = ["lame", "--quiet", "-r", "-s", "44.1", "--bitwidth", "16", "--signed", "--little-endian",
        "-m", "j", "--cbr", "-b", str(MP3_BITRATE), "-q", "2", "--noreplaygain", "-t", "-", "-"]


def pcm_bytes(track):
    """16-bit little-endian frames, without dither: the same bytes every time."""
    samples = array("h", (round(32767 * s) for frame in zip(*track.channels) for s in frame))
    if sys.byteorder == "big":
        samples.byteswap()
    return samples.tobytes()


def _chunk(name, body):
    return name + struct.pack("<I", len(body)) + body + b"\0" * (len(body) % 2)


def _riff(*chunks):
    return _chunk(b"RIFF", b"WAVE" + b"".join(chunks))


def pcm_wave(track):
    channels, rate = len(track.channels), track.rate
    form = struct.pack("<HHIIHH", 1, channels, rate, rate * channels * 2, channels * 2, 16)
    return _riff(_chunk(b"fmt ", form), _chunk(b"data", pcm_bytes(track)))


def mp3_input_frames(frames):
    """How many samples `lame` makes exactly so many frames of."""
    return frames * MP3_FRAME - MP3_DELAY - 288


def mp3_frames(stream):
    """The frames of a Layer 3 stream of our one format; fails on anything else in it."""
    found = []
    while stream:
        if stream[:2] != b"\xff\xfb" or stream[2] & 0xFC != 0xA0:
            raise ValueError("no Layer 3 header of 44100 Hz and 160 kbit/s where one belongs")
        size = 144 * MP3_BITRATE * 1000 // 44100 + (stream[2] >> 1 & 1)
        found.append(stream[:size])
        stream = stream[size:]
    return found


def mp3_wave(track, frames):
    """The track as `frames` Layer 3 frames; it has `mp3_input_frames(frames)` samples."""
    stream = subprocess.run(LAME, input=pcm_bytes(track), capture_output=True, check=True).stdout
    made = mp3_frames(stream)
    if len(made) != frames:
        raise ValueError(f"lame made {len(made)} frames, not {frames}")
    # MPEGLAYER3WAVEFORMAT: twelve more bytes. The flag 'no padding' (2), one frame of
    # 522 bytes a block and the delay are what writers of such files put there and
    # what decoders expect, although every other frame carries a byte of padding.
    form = struct.pack("<HHIIHHHHIHHH", 85, 2, 44100, MP3_BITRATE * 125, 1, 0, 12, 1, 2,
                       144 * MP3_BITRATE * 1000 // 44100, 1, 1393)
    fact = struct.pack("<I", frames * MP3_FRAME)
    return _riff(_chunk(b"fmt ", form), _chunk(b"fact", fact), _chunk(b"data", stream))
