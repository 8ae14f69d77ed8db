"""Small files that hold one thing. A longer one has its reason in long-files.txt."""

from tree import Fault, files, read

LIMITS = {".cpp": 350, ".mm": 350, ".h": 150, ".qml": 150}
REASONS = "Tests/Lint/long-files.txt"


def check(root):
    reasons, faults = read_reasons(root)
    for path in files(root, ["Sources"], set(LIMITS)):
        limit = LIMITS[path[path.rindex("."):]]
        lines = len(read(root, path).splitlines())
        if lines > limit and path not in reasons:
            faults.append(Fault(path, limit, f"{lines} lines, over {limit}; split it, or give a reason in {REASONS}"))
        elif lines <= limit and path in reasons:
            faults.append(Fault(REASONS, reasons[path], f"{path} needs no reason any more"))
        reasons.pop(path, None)
    faults += [Fault(REASONS, line, f"{path} does not exist") for path, line in reasons.items()]
    return faults


def read_reasons(root):
    """Lines of "path: reason"; those that give no reason are faults themselves."""
    reasons, faults = {}, []
    try:
        text = read(root, REASONS)
    except FileNotFoundError:
        return reasons, faults
    for number, line in enumerate(text.splitlines(), 1):
        if not line.strip() or line.startswith("#"):
            continue
        path, _, reason = line.partition(":")
        reasons[path.strip()] = number
        if len(reason.split()) < 3:
            faults.append(Fault(REASONS, number, f"say why {path.strip()} is long"))
    return reasons, faults
