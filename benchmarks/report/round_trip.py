"""The round trips of a player: which message came back when, through each lane."""

from collections import namedtuple

from statistics_of import percentile

CHORD = 10
PIECES = ("stream", "chords", "flood")

Matched = namedtuple("Matched", "frames lost stray")


def match(sent, back):
    """How many frames each message was away, None for a lost one. Both lists are [frame, status, pitch, velocity].

    No lane overtakes: what is behind the message that came back is lost if it has not come yet.
    """
    frames = [None] * len(sent)
    stray = 0
    expected = 0
    for frame, *message in back:
        found = next((i for i in range(expected, len(sent)) if sent[i][1:] == message and sent[i][0] <= frame), None)
        if found is None:
            stray += 1
        else:
            frames[found] = frame - sent[found][0]
            expected = found + 1
    return Matched(frames, frames.count(None), stray)


def last_of_chords(frames):
    """For each whole chord that came back whole: how long its last note was away."""
    whole = [frames[i:i + CHORD] for i in range(0, len(frames) - CHORD + 1, CHORD)]
    return [max(chord) for chord in whole if None not in chord]


def summary(report):
    """Per lane, in the order of the first appearance: times in milliseconds and counts for each piece, of all rounds."""
    lanes = {}
    for played in report["played"]:
        lane = lanes.setdefault(played["lane"], {})
        piece = lane.setdefault(played["piece"], {"times": [], "sent": 0, "lost": 0, "stray": 0})
        matched = match(played["sent"], played["back"])
        piece["sent"] += played["due"]
        piece["lost"] += matched.lost + played["due"] - len(played["sent"])
        piece["stray"] += matched.stray
        came = last_of_chords(matched.frames) if played["piece"] == "chords" else \
            [frames for frames in matched.frames if frames is not None]
        piece["times"] += [frames * 1000 / report["rate"] for frames in came]
    return lanes


def times(lane, piece, *shares):
    """Percentiles of a piece; None for each if nothing came back."""
    return [percentile(lane.get(piece, {}).get("times", []), share) for share in shares]


def counts(lane, name):
    """A count of the three pieces, as one cell."""
    return ", ".join(str(lane[piece][name]) if piece in lane else "–" for piece in PIECES)


def above(lanes, lane, other, period_ms):
    """By how many periods the median and the 99th percentile of a stream lie above another lane's, or None."""
    if lane not in lanes or other not in lanes:
        return None
    pairs = zip(times(lanes[lane], "stream", 0.5, 0.99), times(lanes[other], "stream", 0.5, 0.99))
    return [None if None in pair else (pair[0] - pair[1]) / period_ms for pair in pairs]
