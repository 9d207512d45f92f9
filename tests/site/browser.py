"""A Chromium without a window, for pages that are files."""

import tempfile

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service

FLAGS = (
    "--headless",
    "--no-sandbox",
    "--disable-gpu",
    "--disable-quic",
    "--no-first-run",
    "--disable-background-networking",
    "--disable-component-update",
    "--disable-sync",
    "--disable-dev-shm-usage",
    "--disable-ipc-flooding-protection",  # thousands of names a minute is more than a person asks for
)


class Browser:
    """The driver, with a profile of its own that goes with it."""

    def __init__(self, width=1400, height=1000, dark=False):
        self.profile = tempfile.TemporaryDirectory()
        options = Options()
        options.binary_location = "/usr/bin/chromium"
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        for flag in (*FLAGS, f"--user-data-dir={self.profile.name}", f"--window-size={width},{height}"):
            options.add_argument(flag)
        if dark:
            options.add_argument("--blink-settings=preferredColorScheme=0")
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        self.driver.set_script_timeout(600)

    def __enter__(self):
        return self.driver

    def __exit__(self, *_):
        self.driver.quit()
        self.profile.cleanup()
