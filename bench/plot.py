"""The plot of docs/benchmarks.md: how the ratios of each group of rows are spread."""

import matplotlib

matplotlib.use("Agg")
matplotlib.rcParams["svg.fonttype"] = "none"
from matplotlib import pyplot  # noqa: E402

from results import groups  # noqa: E402

COLOURS = ("#3465a4", "#c17d11")


def draw(runs, path):
    names = [name for name, _ in groups(runs[0]["rows"])]
    figure, axes = pyplot.subplots(figsize=(9, 0.42 * len(names) + 1.2))
    for number, (run, colour) in enumerate(zip(runs, COLOURS)):
        members = dict(groups(run["rows"]))
        places = [-place + 0.18 - 0.36 * number for place in range(len(names))]
        ratios = [[row.ratio for row in members.get(name, ()) if row.ratio] for name in names]
        boxes = axes.boxplot(
            ratios,
            positions=places,
            vert=False,
            widths=0.3,
            whis=(5, 95),
            showfliers=False,
            patch_artist=True,
            manage_ticks=False,
        )
        for box in boxes["boxes"]:
            box.set(facecolor=colour, alpha=0.7)
        axes.plot([], [], color=colour, linewidth=6, alpha=0.7, label=run["target"])
    axes.axvline(1, color="black", linewidth=1)
    axes.set_xscale("log")
    ticks = (0.1, 0.2, 0.5, 1, 2, 5, 10)
    axes.set_xticks(ticks, map(str, ticks))
    axes.minorticks_off()
    axes.set_yticks([-place for place in range(len(names))], names)
    axes.set_xlabel("own time over the fastest peer's: median, half of the rows, nine tenths of the rows")
    axes.grid(axis="x", alpha=0.3)
    axes.legend(loc="lower right")
    figure.tight_layout()
    figure.savefig(path, metadata={"Date": None})
