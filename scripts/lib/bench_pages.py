"""The pages of the benchmark: page N is the same text on every machine and in every run."""

import hashlib


def page(number, size, changed_every=0):
    """Page `number` of `size` bytes, with the quotes and line ends that pages have. With `changed_every` of 10 every
    tenth page is another one: it differs in its last bytes."""
    head = f"<html><head><title>Page {number}</title></head>\r\n<body class=\"plain\">\r\n"
    lines = []
    length = len(head)
    while length < size:
        digest = hashlib.sha256(f"{number}/{len(lines)}".encode()).hexdigest()
        lines.append(f"<p id=\"{len(lines)}\">{digest} isn't what it was</p>\r\n")
        length += len(lines[-1])
    text = (head + "".join(lines)).encode()[:size]
    if changed_every and number % changed_every == 0:
        text = text[:-8] + b"changed!"
    return text
