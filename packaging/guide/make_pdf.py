#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0
"""Converts a page to PDF: make_pdf.py PAGE PDF DATE.

The PDF is reproducible: it depends neither on the folder nor on the time of the build. WeasyPrint
names the pictures after their addresses, so it gets addresses that don't depend on the folder. The
fonts contain a time stamp: SOURCE_DATE_EPOCH if set, otherwise the date, as in 2026-11-22.
"""
import datetime
import os
import pathlib
import sys

import weasyprint

BASE = "file:///guide/"


def main():
    page, pdf = map(pathlib.Path, sys.argv[1:3])
    date = datetime.datetime.fromisoformat(sys.argv[3] + "T00:00:00+00:00")
    os.environ.setdefault("SOURCE_DATE_EPOCH", str(int(date.timestamp())))

    def fetch(url):
        if not url.startswith(BASE):
            raise ValueError(f"{page} refers to {url}, which is not beside it")
        return {"string": (page.parent / url[len(BASE):]).read_bytes()}

    document = weasyprint.HTML(string=page.read_text(encoding="utf-8"), base_url=BASE,
                               url_fetcher=fetch)
    document.write_pdf(pdf, optimize_size=("images", "fonts"))


if __name__ == "__main__":
    main()
