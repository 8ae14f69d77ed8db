"""Makes a small Mac in a folder: applications with icons, a Dock, three weeks of usage, profiles and earlier Docks.

The same at every call but for the dates, which count back from now. Needs nothing but Python's own library.
"""

import argparse
import datetime
import errno
import json
import os
import pathlib
import plistlib
import random
import shutil
import sys
import uuid

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).parent))

from apps import ACTIVE, APPS, DOCK, EARLIER, PROFILES
import icons

NAMESPACE = uuid.UUID("6f0c0a52-51f8-4d0a-9d3a-3f3c5c9be6aa")
MARK = ".complete"
# Days ago with a record of usage: this week but for two days away, and the two weeks before.
WEEK, BEFORE = range(0, 5), range(7, 21)


class World:
    def __init__(self, folder, now):
        self.folder, self.now = folder, now
        self.support = folder / "Library/Application Support/Kelvane"
        self.random = random.Random(20)

    def write(self, path, content):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
        return path

    def write_json(self, name, value):
        text = json.dumps(value, indent=2, sort_keys=True, ensure_ascii=False)
        self.write(self.support / name, text.encode() + b"\n").chmod(0o600)

    def bundle(self, app):
        return self.folder / "Applications" / f"{app.name}.app"


def day(world, ago):
    """The local calendar day so many days ago."""
    return (world.now - datetime.timedelta(days=ago)).date()


def moment(world, ago, minutes):
    """A moment of that day, in minutes after midnight, but never later than now."""
    midnight = datetime.datetime.combine(day(world, ago), datetime.time())
    return min(midnight + datetime.timedelta(minutes=minutes), world.now)


def utc(local):
    """A local moment as property lists and JSON want it: in UTC, whole seconds, no zone attached."""
    return datetime.datetime.fromtimestamp(int(local.timestamp()), datetime.timezone.utc).replace(tzinfo=None)


def iso(local):
    return utc(local).isoformat() + "Z"


def make_bundle(world, app):
    contents = world.bundle(app) / "Contents"
    information = {
        "CFBundleIdentifier": app.identifier,
        "CFBundleName": app.name,
        "CFBundleDisplayName": app.name,
        "CFBundleExecutable": app.name,
        "CFBundleIconFile": "AppIcon",
        "CFBundlePackageType": "APPL",
        "CFBundleShortVersionString": "1.0",
    }
    world.write(contents / "Info.plist", plistlib.dumps(information))
    world.write(contents / "Resources/AppIcon.icns", icons.icns(app))
    world.write(contents / "MacOS" / app.name, b"#!/bin/sh\nexit 0\n").chmod(0o755)


def spread(world, total, days, wholes):
    """Parts of `total` over some of the days, each at least 1, uneven as real days are."""
    if not days:
        return {}
    weights = [0.6 + world.random.random() for _ in days]
    parts = [total * weight / sum(weights) for weight in weights]
    if wholes:
        parts = [max(1, int(part)) for part in parts]
        parts[0] = max(1, parts[0] + total - sum(parts))
    return dict(zip(days, parts))


def usage(world):
    """The usage record, and for each application the days ago on which it has a part in it."""
    days, used = {}, {}
    for app in APPS:
        used[app.identifier] = set()
        for period, amount in ((WEEK, app.week), (BEFORE, app.before)):
            minutes, switches, count = amount or (0, 0, 0)
            chosen = sorted(world.random.sample(list(period), count))
            seconds = spread(world, minutes * 60, chosen, wholes=False)
            activations = spread(world, switches, chosen, wholes=True)
            for ago in chosen:
                used[app.identifier].add(ago)
                record = days.setdefault(day(world, ago).isoformat(), {"seconds": {}, "activations": {}})
                record["seconds"][app.identifier] = round(seconds[ago], 3)
                record["activations"][app.identifier] = activations[ago]
    since = moment(world, BEFORE[-1], 14 * 60 + 30)
    names = {app.identifier: app.name for app in APPS if used[app.identifier]}
    return {"version": 1, "trackingSince": iso(since), "days": days, "names": names}, used


def set_opened(world, app, days):
    """The days on which the system saw the bundle opened, as metadata travels on other file systems."""
    moments = sorted(utc(moment(world, ago, 8 * 60 + 20 + (ago * 37) % 400)) for ago in days)
    attributes = {"kMDItemUsedDates": moments, "kMDItemLastUsedDate": moments[-1]}
    for name, value in attributes.items():
        content = plistlib.dumps(value, fmt=plistlib.FMT_BINARY)
        os.setxattr(world.bundle(app), f"user.com.apple.metadata:{name}", content)


def set_all_opened(world, used):
    if not hasattr(os, "setxattr"):
        print("The days on which applications were opened are left out: only the system writes them here.", file=sys.stderr)
        return
    try:
        for app in APPS:
            days = used[app.identifier] | set(app.opened)
            if app.installed and days:
                set_opened(world, app, days)
    except OSError as error:
        if error.errno not in (errno.ENOTSUP, errno.EPERM, errno.EACCES, errno.ENOSPC):
            raise
        print("The days on which applications were opened are left out: this file system keeps no extended attributes.",
              file=sys.stderr)


def tile(world, identifier):
    app = next(app for app in APPS if app.identifier == identifier)
    return {
        "GUID": uuid.uuid5(NAMESPACE, identifier).int >> 96,
        "tile-type": "file-tile",
        "tile-data": {
            "book": b"book\0\0\0\0mark\0\0\0\0",
            "bundle-identifier": identifier,
            "dock-extra": False,
            "file-data": {"_CFURLString": world.bundle(app).as_uri() + "/", "_CFURLStringType": 15},
            "file-label": app.name,
            "file-mod-date": 214748364700000,
            "file-type": 41,
            "is-beta": False,
            "parent-mod-date": 214748364700000,
        },
    }


def dock(world):
    downloads = {
        "GUID": uuid.uuid5(NAMESPACE, "Downloads").int >> 96,
        "tile-type": "directory-tile",
        "tile-data": {
            "arrangement": 2,
            "displayas": 0,
            "file-data": {"_CFURLString": (world.folder / "Downloads").as_uri() + "/", "_CFURLStringType": 15},
            "file-label": "Downloads",
            "file-type": 2,
            "showas": 1,
        },
    }
    return {
        "autohide": False,
        "magnification": True,
        "orientation": "bottom",
        "persistent-apps": [tile(world, identifier) for identifier in DOCK],
        "persistent-others": [downloads],
        "show-recents": False,
        "tilesize": 48.5,
    }


def profile_id(name):
    return str(uuid.uuid5(NAMESPACE, name)).upper()


def profiles():
    keys = ("name", "symbol", "pinned", "excluded", "adaptiveSlots", "window", "separatePinned")
    return [dict(zip(keys, profile), id=profile_id(profile[0])) for profile in PROFILES]


def settings(world):
    return {
        "activeProfileID": profile_id(ACTIVE),
        "autoPaused": False,
        "autoUpdate": 14400,
        "lastApplied": iso(world.now - datetime.timedelta(minutes=20)),
        "lastAppliedSignature": DOCK,
        "onboarded": True,
        "trackingEnabled": True,
    }


def snapshots(world, present):
    """The earlier Docks, newest first, and the property list of each."""
    index = []
    for reason, when, held in EARLIER:
        taken = moment(world, *when)
        name = f"{int(taken.timestamp() * 1000)}-{profile_id(reason)[:6]}"
        state = {"persistent-apps": [tile(world, identifier) for identifier in held],
                 "persistent-others": present["persistent-others"], "show-recents": False}
        world.write(world.support / "Snapshots" / f"{name}.plist", plistlib.dumps(state, fmt=plistlib.FMT_BINARY)).chmod(0o600)
        index.insert(0, {"id": name, "date": iso(taken), "reason": reason, "bundleIDs": held, "signature": held,
                         "isOriginal": reason == "Before Kelvane"})
    return index


def clear(folder):
    """Makes room, but only where a world stood or nothing."""
    if folder.exists() and any(folder.iterdir()):
        if not (folder / MARK).exists():
            sys.exit(f"{folder} holds something that this script did not make; name another folder or empty it")
        shutil.rmtree(folder)
    folder.mkdir(parents=True, exist_ok=True)


def make(folder, first_run=False):
    """`first_run` leaves out profiles, settings and earlier Docks."""
    folder = folder.resolve()
    clear(folder)
    # The mark comes first, so that a world broken off half-way can be made anew; what it says comes last.
    mark = folder / MARK
    mark.touch()
    world = World(folder, datetime.datetime.now())
    for app in APPS:
        if app.installed:
            make_bundle(world, app)
    record, used = usage(world)
    set_all_opened(world, used)
    (folder / "Downloads").mkdir()
    present = dock(world)
    world.write(folder / "Library/Preferences/com.apple.dock.plist", plistlib.dumps(present))
    world.write_json("usage.json", record)
    if not first_run:
        world.write_json("profiles.json", profiles())
        world.write_json("settings.json", settings(world))
        world.write_json("Snapshots/index.json", snapshots(world, present))
    mark.write_text(f"{folder}\n", encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--first-run", action="store_true", help="leave out profiles, settings and earlier Docks")
    options = parser.parse_args()
    make(options.folder, options.first_run)


if __name__ == "__main__":
    main()
