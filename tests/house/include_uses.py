"""Whether a source can have any use for a header that it includes, as far as names alone can tell."""

import re

COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)
DERIVED = re.compile(r"^\s*(?:class|struct)\s+\w+[^;{]*:[^:]", re.MULTILINE)
WORD = re.compile(r"[A-Za-z_]\w*")
# What a standard header gives; a header that is not listed is never called idle.
STANDARD = {
    "algorithm": "all_of any_of none_of find\\w* count\\w* sort stable_sort \\w*sorted\\w* copy\\w* fill\\w* transform"
    " min max minmax\\w* min_element max_element clamp reverse\\w* rotate\\w* unique remove\\w* replace\\w* equal\\w*"
    " for_each\\w* generate\\w* partition\\w* \\w+_bound search\\w* mismatch shuffle includes set_\\w+ merge"
    " is_permutation lexicographical_compare nth_element adjacent_find swap_ranges binary_search",
    "array": "array",
    "atomic": "atomic\\w* memory_order\\w*",
    "bitset": "bitset",
    "chrono": "chrono \\d+ms \\d+s",
    "cmath": "abs fabs round\\w* lround floor ceil sqrt pow sin cos tan hypot log\\w* exp fmod is\\w+ trunc cbrt atan2? fm\\w+"
    " l?lrint nearbyint",
    "condition_variable": "condition_variable\\w*",
    "functional": "function hash less greater plus minus invoke bind ref cref not_fn multiplies bit_\\w+ equal_to",
    "future": "future async promise",
    "initializer_list": "initializer_list",
    "limits": "numeric_limits",
    "map": "map multimap",
    "memory": "unique_ptr make_unique shared_ptr make_shared weak_ptr addressof allocator default_delete",
    "mutex": "mutex \\w*lock\\w* once_flag call_once",
    "numeric": "iota accumulate gcd lcm \\w*sum reduce inner_product",
    "optional": "optional nullopt",
    "random": "\\w+_distribution mt19937\\w* random_device minstd_rand\\w*",
    "set": "set multiset",
    "shared_mutex": "shared_mutex shared_lock",
    "string": "string to_string getline sto\\w+",
    "thread": "thread this_thread",
    "type_traits": "\\w+_v \\w+_t is_\\w+ true_type false_type",
    "vector": "vector",
}
# What nearly every file holds: it tells nothing.
KEYWORDS = set(
    "auto bool break case char class const constexpr continue default delete double else enum explicit extern false final"
    " for friend if inline int long namespace new noexcept nodiscard nullptr operator override private protected public"
    " return short signed sizeof static struct switch template this true typename typedef union unsigned using virtual"
    " void volatile while std size_t pragma once define endif ifdef ifndef"
    " Q_OBJECT signals slots emit QString QStringList QObject QList QWidget qreal QPointF QPoint QRect QSize".split()
)


def code_of(text):
    """A source without comments, texts and includes."""
    text = re.sub(r"^[ \t]*#[ \t]*include.*$", "", text, flags=re.MULTILINE)
    return COMMENT_OR_TEXT.sub(" ", text)


def may_use(code, name, header=None):
    """False if the code has no word that the header could be there for. `header` is the text of an own one.

    Qt's classes, and own ones with a base, are needed where their names do not stand: view->scene()->clear().
    """
    if header is not None:
        return bool(DERIVED.search(header)) or bool(set(WORD.findall(code)) & given_by(header))
    if name in STANDARD:
        words = "|".join(STANDARD[name].split())
        return re.search(rf"\b(?:{words})\b", code) is not None
    return True


def given_by(header):
    """The words of a header that whoever uses it may write, those of its own includes apart."""
    return set(WORD.findall(code_of(header))) - KEYWORDS
