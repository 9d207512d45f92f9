"""The plot of docs/benchmarks.md: how the ratios of each group of rows are spread, a panel for each build."""

import matplotlib

matplotlib.use("Agg")
matplotlib.rcParams["svg.fonttype"] = "none"
from matplotlib import pyplot  # noqa: E402

from results import groups  # noqa: E402


def draw_build(axes, run, names):
    members = {name: [row.ratio for row in rows if row.ratio] for name, rows in groups(run["rows"])}
    boxes = axes.boxplot(
        [members.get(name, []) for name in names],
        positions=[-place for place in range(len(names))],
        vert=False,
        widths=0.6,
        whis=(5, 95),
        showfliers=False,
        patch_artist=True,
        manage_ticks=False,
        medianprops={"color": "black"},
    )
    for box in boxes["boxes"]:
        box.set(facecolor="#3465a4", alpha=0.7)
    axes.axvline(1, color="black", linewidth=1)
    axes.set_xscale("log")
    axes.set_xlim(0.05, 5)
    axes.set_ylim(0.6 - len(names), 0.6)
    ticks = (0.1, 0.2, 0.5, 1, 2)
    axes.set_xticks(ticks, map(str, ticks))
    axes.minorticks_off()
    axes.grid(axis="x", alpha=0.3)
    axes.set_title(run["target"], fontsize=11)


def draw(runs, path):
    names = [name for name, _ in groups(runs[0]["rows"])]
    figure, panels = pyplot.subplots(
        1, len(runs), sharey=True, squeeze=False, figsize=(2.2 + 2.4 * len(runs), 0.28 * len(names) + 1.2)
    )
    for axes, run in zip(panels[0], runs):
        draw_build(axes, run, names)
    panels[0][0].set_yticks([-place for place in range(len(names))], names)
    figure.supxlabel("own time over the fastest peer's: median, half of the rows, nine tenths of the rows", fontsize=10)
    figure.tight_layout()
    figure.savefig(path, metadata={"Date": None} if str(path).endswith("svg") else None)
