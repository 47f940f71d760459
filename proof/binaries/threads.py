"""Four threads at once get what one gets, without a race: mqThreadTests under the thread sanitizer."""

from workshop import Finding, cases_of


def check(shop):
    findings = []
    for preset, words in (("tsan", "no race, no other answer"), ("dev", "no other answer")):
        tests = shop.suite("linux", shop.build(preset, "mqThreadTests") / "mqThreadTests")
        findings.append(Finding(f"four threads get the answers of one ({preset})", cases_of(tests),
                                words))
    return findings
