// The rules of the page's own script and of its tests.
import js from "@eslint/js";
import globals from "globals";

export default [
    js.configs.recommended,
    {
        files: ["*.js", "page/*.js", "test/*.js"],
        languageOptions: { globals: { ...globals.browser, ...globals.serviceworker, ...globals.node } },
        rules: {
            eqeqeq: "error",
            "no-var": "error",
            "prefer-const": "error",
            "no-eval": "error",
            "no-implied-eval": "error",
            "no-new-func": "error",
            "no-restricted-properties": [
                "error",
                { property: "innerHTML", message: "Titles and phrases are text, never markup." },
                { property: "outerHTML", message: "Titles and phrases are text, never markup." },
                { property: "insertAdjacentHTML", message: "Titles and phrases are text, never markup." },
            ],
        },
    },
    { files: ["page/sw.js"], rules: { "no-unused-vars": "off" } },
];
