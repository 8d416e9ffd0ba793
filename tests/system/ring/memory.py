"""What a process still knows: its writable memory, searched for secrets."""

import re

# Fewer characters in a row are found by chance.
SHORTEST_TRACE = 6


def writable_memory(pid):
    """The content of every mapping that the process can write to."""
    with open(f"/proc/{pid}/maps", encoding="utf-8") as maps:
        ranges = [line.split()[0] for line in maps if "w" in line.split()[1]]
    with open(f"/proc/{pid}/mem", "rb") as memory:
        for text in ranges:
            begin, end = (int(part, 16) for part in text.split("-"))
            memory.seek(begin)
            try:
                yield memory.read(end - begin)
            except (OSError, ValueError):
                pass  # of a device, or gone meanwhile


def patterns(secret):
    """Everything that gives a secret away, each with its name. A text is looked for in pieces, as
    it may be overwritten in part, and in the three forms in which a program may have it."""
    if isinstance(secret, bytes):
        return {f"the bytes {secret.hex()}": re.escape(secret)}
    found = {}
    for start in range(max(1, len(secret) - SHORTEST_TRACE + 1)):
        piece = secret[start:start + SHORTEST_TRACE]
        letters = [re.escape(letter.encode()) for letter in piece]
        found[f"{piece!r} in UTF-8"] = b"".join(letters)
        found[f"{piece!r} in UTF-16"] = b"\0".join(letters) + b"\0"
        # The toolkit's text engine keeps 16 bytes for each character.
        found[f"{piece!r} spaced out"] = b"[\\0-\xff]{15}".join(letters)
    return found


class Traces:
    """Of secrets in a process; what was there before does not count."""

    def __init__(self, pid, *secrets):
        self._pid = pid
        self._patterns = {name: re.compile(pattern, re.DOTALL)
                          for secret in secrets for name, pattern in patterns(secret).items()}
        before = self._found()
        self._patterns = {name: pattern for name, pattern in self._patterns.items()
                          if name not in before}

    def _found(self):
        names = set()
        for content in writable_memory(self._pid):
            names.update(name for name, pattern in self._patterns.items() if pattern.search(content))
        return names

    def found(self):
        return sorted(self._found())
