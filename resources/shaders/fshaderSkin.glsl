#version 130
#ifdef GL_ES
precision mediump int;
precision mediump float;
#endif

// "texture" names the sampler and so hides the function of that name.
uniform sampler2D texture;
uniform float brightness;
uniform float tiling;
uniform vec4 color_highlight;
uniform vec4 wire_color;
uniform bool edges;

in vec2 v_texcoord;

out vec4 outColor;

void main()
{
    vec4 c = texture2D(texture, v_texcoord * tiling);
    // The tint is brightened with the texture.
    c.rgb += color_highlight.rgb;
    c.rgb *= brightness;
    if (c.a < 0.01) {
        // What lies behind a hole is seen through it; edges are drawn across.
        if (!edges)
            discard;
        c = vec4(0.0, 0.0, 0.0, 0.0);
    }
    // Edges have one colour, or orange where their surface is selected.
    vec3 wire = color_highlight.b > 0.0 ? vec3(1.0, 0.55, 0.0) : wire_color.rgb;
    outColor = mix(c, vec4(wire, 1.0), wire_color.a);
}
