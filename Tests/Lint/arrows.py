"""Who may know whom: every include of Sources/ against the plan in Docs/architecture.md."""

import pathlib
import re

from tree import CODE, Fault, files, read

INCLUDE = re.compile(r'^\s*#\s*(?:include|import)\s*(["<])([^">]+)[">]')
QML_IMPORT = re.compile(r'^\s*import\s+("?)([\w./]+)')
COMMENT = re.compile(r"//.*$")

# Which of our own folders the files below a folder may include.
MAY_INCLUDE = {
    "Sources/DockCore/": ("DockCore/",),
    "Sources/Kelvane/": ("DockCore/", "Kelvane/"),
    "Sources/kelvanectl/": ("DockCore/", "Kelvane/", "kelvanectl/"),
    "Sources/Platform/Linux/": ("DockCore/", "Kelvane/Ports/", "Platform/Linux/", "Platform/Posix/", "Platform/QtProcesses", "Platform/SelfTest"),
    "Sources/Platform/MacOS/": ("DockCore/", "Kelvane/Ports/", "Platform/MacOS/", "Platform/Posix/", "Platform/QtProcesses", "Platform/SelfTest"),
    "Sources/Platform/": ("DockCore/", "Kelvane/Ports/", "Platform/"),
}
MAINS = ("Sources/Kelvane/main.cpp", "Sources/kelvanectl/main.cpp")

PLATFORM_MACRO = re.compile(r"\b(Q_OS_\w+|__APPLE__|__linux__|__unix__|_WIN32|TARGET_OS_\w+)\b")
PLATFORM_HEADER = re.compile(
    r"^(unistd\.h|fcntl\.h|signal\.h|spawn\.h|pwd\.h|dirent\.h|dlfcn\.h|malloc\.h|poll\.h|sys/.*|linux/.*|mach/.*|objc/.*"
    r"|X11/.*|xcb/.*|dbus/.*|QDBus\w*|QtDBus.*|qpa/.*"
    r"|(CoreFoundation|CoreServices|CoreGraphics|ApplicationServices|Foundation|AppKit|Cocoa|ServiceManagement)/.*)$")
QML_MODULES = re.compile(r"^(QtQuick|QtQml|QtCore|Kelvane|Qt\.labs)(\.|$)")


def check(root, qt_core=None):
    """`qt_core` is the folder of Qt Core's headers; without it only the names of our own are checked."""
    faults = []
    for path in files(root, ["Sources"], CODE):
        faults += check_code(path, read(root, path), qt_core)
    for path in files(root, ["Sources"], {".qml"}):
        faults += check_qml(path, read(root, path))
    return faults


def check_code(path, text, qt_core):
    faults = []
    in_platform = path.startswith("Sources/Platform/")
    allowed = next((folders for prefix, folders in MAY_INCLUDE.items() if path.startswith(prefix)), ())
    if path in MAINS:
        allowed += ("Platform/",)
    for number, line in enumerate(text.splitlines(), 1):
        include = INCLUDE.match(line)
        if include:
            fault = include_fault(path, include[1] == '"', include[2], allowed, qt_core, in_platform)
            if fault:
                faults.append(Fault(path, number, fault))
        elif not in_platform:
            macro = PLATFORM_MACRO.search(COMMENT.sub("", line))
            if macro:
                faults.append(Fault(path, number, f"{macro[1]} belongs below Sources/Platform"))
    return faults


def include_fault(path, ours, name, allowed, qt_core, in_platform):
    if ours:
        if name.endswith(".moc"):
            return None
        if name.startswith("Platform/") and not name.startswith(allowed):
            return f'"{name}": only the two mains know the adapters'
        if not name.startswith(allowed):
            return f'"{name}": {path.split("/")[1]} must not know it, or it is not written from Sources/'
        return None
    if not in_platform and PLATFORM_HEADER.match(name):
        return f"<{name}> belongs below Sources/Platform"
    if path.startswith("Sources/DockCore/"):
        return dock_core_fault(name, qt_core)
    return None


def dock_core_fault(name, qt_core):
    if name.startswith("plist/") or re.fullmatch(r"[a-z_0-9]+", name) or re.fullmatch(r"c?[a-z]+\.h", name):
        return None
    header = name.removeprefix("QtCore/")
    if header.startswith(("Q", "q")) and (qt_core is None or (pathlib.Path(qt_core) / header).is_file()):
        return None
    return f"<{name}>: DockCore knows the standard library, Qt Core and libplist only"


def check_qml(path, text):
    faults = []
    for number, line in enumerate(text.splitlines(), 1):
        imported = QML_IMPORT.match(line)
        if imported and not imported[1] and not QML_MODULES.match(imported[2]):
            faults.append(Fault(path, number, f"{imported[2]} is no module that a view may import"))
        if re.match(r"^[\w.]+\s*\{", line):
            break
    return faults
