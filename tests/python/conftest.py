import os

from hypothesis import settings

# The same cases in every run; HYPOTHESIS_PROFILE=search looks for new ones.
settings.register_profile("repeat", derandomize=True, database=None)
settings.register_profile("search", database=None)
settings.load_profile(os.environ.get("HYPOTHESIS_PROFILE", "repeat"))
